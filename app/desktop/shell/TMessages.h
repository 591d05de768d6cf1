// The one door through which message boxes, file dialogs and prompts are shown. Tests prepare the
// answers and look at what was asked.
#pragma once

#include "core/Messages.h"

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

class QWidget;

namespace kestrav::desktop
{

/// What was shown: a message, or a question for a file or a text with its caption.
struct ShownMessage
{
    QString caption;
    QString text;
    core::Buttons buttons = core::Buttons::Ok;
};

/// Messages as modal boxes over the active window.
class TMessages : public core::Messages
{
public:
    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override;

    /// The file to open, or nothing when the user cancels. `filter` is "caption|pattern;pattern";
    /// both cases of a pattern are offered. `folder` is where the dialog begins.
    static std::optional<QString> fileToOpen(QWidget* parent, const QString& caption,
                                             std::wstring_view filter, const QString& folder = {});
    /// The file to save under. The suffix is added where the typed name has none; whether an
    /// existing file may be replaced is asked by the caller with the text given for it.
    static std::optional<QString> fileToSave(QWidget* parent, const QString& caption,
                                             std::wstring_view filter, const QString& suggestion);
    static std::optional<QString> folder(QWidget* parent, const QString& caption,
                                         const QString& begin);
    /// A line of text.
    static std::optional<QString> text(QWidget* parent, const QString& caption,
                                       const QString& prompt, const QString& begin = {});

    /// From now on messages are written to standard error and questions are declined: for runs
    /// without a user.
    static void answerOnTerminal();

    /// From now on nothing is shown: boxes take the prepared answers in their order, the last ones
    /// Cancel or No; questions for files and texts take the prepared texts, and then nothing.
    static void answerFromQueue();
    static void prepare(core::Answer answer);
    static void prepare(const QString& text);
    /// What was shown since the last call.
    static std::vector<ShownMessage> takeShown();
};

/// "Name (*.ksc *.dat *.KSC *.DAT)" of "Name|*.ksc;*.dat"; further pairs follow after '|'.
[[nodiscard]] QString toolkitFilter(std::wstring_view filter);

} // namespace kestrav::desktop

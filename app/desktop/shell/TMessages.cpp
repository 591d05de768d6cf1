#include "app/desktop/shell/TMessages.h"

#include "app/desktop/shell/Convert.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStringList>

#include <cstdio>
#include <deque>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using core::Answer;
using core::Buttons;

// The prepared answers of tests. Messages are shown on one thread only.
struct Queue
{
    bool inUse = false;
    bool terminal = false;
    std::deque<Answer> answers;
    std::deque<QString> texts;
    std::vector<ShownMessage> shown;
};

Queue& queue()
{
    static Queue theQueue;
    return theQueue;
}

template <typename Item>
std::optional<Item> takeFirst(std::deque<Item>& items)
{
    if (items.empty()) {
        return std::nullopt;
    }
    Item first = std::move(items.front());
    items.pop_front();
    return first;
}

// Whether nobody is asked: a test answers, and the text is noted for it, or there is no user.
bool answered(const QString& caption, const QString& text, Buttons buttons)
{
    if (queue().terminal) {
        std::fprintf(stderr, "kestrav: %s: %s\n", toUtf8(caption).c_str(), toUtf8(text).c_str());
        return true;
    }
    if (queue().inUse) {
        queue().shown.push_back({caption, text, buttons});
    }
    return queue().inUse;
}

Answer cautious(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok:
        return Answer::Ok;
    case Buttons::YesNo:
        return Answer::No;
    case Buttons::OkCancel:
    case Buttons::YesNoCancel:
        break;
    }
    return Answer::Cancel;
}

QMessageBox::StandardButtons toolkitButtons(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Answer answerOf(int button, Buttons buttons)
{
    switch (button) {
    case QMessageBox::Ok:
        return Answer::Ok;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return cautious(buttons);
    }
}

QMessageBox::Icon iconOf(const QString& caption, Buttons buttons)
{
    if (buttons != Buttons::Ok) {
        return QMessageBox::Question;
    }
    if (caption == QLatin1String("Error")) {
        return QMessageBox::Critical;
    }
    return caption == QLatin1String("Warning") ? QMessageBox::Warning : QMessageBox::Information;
}

// "svg" of "Drawing (*.svg)"; empty where a filter lets all files through.
QString suffixOf(const QString& filter)
{
    static const QRegularExpression kSuffix(QStringLiteral("\\*\\.(\\w+)"));
    return kSuffix.match(filter).captured(1);
}

// The ending of a name follows the kind of file that is chosen.
void takeSuffix(QFileDialog& dialog, const QString& filter)
{
    const QString suffix = suffixOf(filter);
    const QFileInfo named(dialog.selectedFiles().value(0));
    if (suffix.isEmpty()) {
        return;
    }
    if (!named.fileName().isEmpty() && named.suffix() == dialog.defaultSuffix()) {
        dialog.selectFile(named.completeBaseName() + QLatin1Char('.') + suffix);
    }
    dialog.setDefaultSuffix(suffix);
}

} // namespace

Answer TMessages::show(const std::wstring& caption, const std::wstring& text, Buttons buttons)
{
    const QString title = toQt(caption);
    if (answered(title, toQt(text), buttons)) {
        return takeFirst(queue().answers).value_or(cautious(buttons));
    }
    QMessageBox box(iconOf(title, buttons), title, toQt(text), toolkitButtons(buttons),
                    QApplication::activeWindow());
    // What stands in a text is never markup: names of charts and files may hold anything.
    box.setTextFormat(Qt::PlainText);
    box.setObjectName(QStringLiteral("MessageBox"));
    if (buttons == Buttons::YesNo) {
        box.setEscapeButton(QMessageBox::No);
    }
    return answerOf(box.exec(), buttons);
}

std::optional<QString> TMessages::fileToOpen(QWidget* parent, const QString& caption,
                                             std::wstring_view filter, const QString& folder)
{
    if (answered(caption, toQt(filter), Buttons::OkCancel)) {
        return takeFirst(queue().texts);
    }
    const QString file =
        QFileDialog::getOpenFileName(parent, caption, folder, toolkitFilter(filter));
    return file.isEmpty() ? std::nullopt : std::optional(file);
}

std::optional<QString> TMessages::fileToSave(QWidget* parent, const QString& caption,
                                             std::wstring_view filter, const QString& suggestion)
{
    if (answered(caption, toQt(filter), Buttons::OkCancel)) {
        return takeFirst(queue().texts);
    }
    QFileDialog dialog(parent, caption, QFileInfo(suggestion).path(), toolkitFilter(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(QFileInfo(suggestion).fileName());
    dialog.setDefaultSuffix(QFileInfo(suggestion).suffix());
    QObject::connect(&dialog, &QFileDialog::filterSelected,
                     [&dialog](const QString& kind) { takeSuffix(dialog, kind); });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> TMessages::folder(QWidget* parent, const QString& caption,
                                         const QString& begin)
{
    if (answered(caption, {}, Buttons::OkCancel)) {
        return takeFirst(queue().texts);
    }
    const QString chosen = QFileDialog::getExistingDirectory(parent, caption, begin);
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen);
}

std::optional<QString> TMessages::text(QWidget* parent, const QString& caption,
                                       const QString& prompt, const QString& begin)
{
    if (answered(caption, prompt, Buttons::OkCancel)) {
        return takeFirst(queue().texts);
    }
    bool accepted = false;
    const QString typed =
        QInputDialog::getText(parent, caption, prompt, QLineEdit::Normal, begin, &accepted);
    return accepted ? std::optional(typed) : std::nullopt;
}

void TMessages::answerOnTerminal()
{
    queue().terminal = true;
}

void TMessages::answerFromQueue()
{
    queue() = {};
    queue().inUse = true;
}

void TMessages::prepare(Answer answer)
{
    queue().answers.push_back(answer);
}

void TMessages::prepare(const QString& text)
{
    queue().texts.push_back(text);
}

std::vector<ShownMessage> TMessages::takeShown()
{
    return std::exchange(queue().shown, {});
}

QString toolkitFilter(std::wstring_view filter)
{
    const QStringList parts = toQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(QLatin1Char(';'));
        patterns += parts[i + 1].toUpper().split(QLatin1Char(';'));
        patterns.removeDuplicates();
        // The toolkit takes the last parentheses for the patterns and shows the text before them.
        filters += parts[i].section(QLatin1String(" (*"), 0, 0) + QLatin1String(" (") +
                   patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters.join(QLatin1String(";;"));
}

} // namespace kestrav::desktop

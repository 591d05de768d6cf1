// A box for a short code that shows what the codes mean.
#pragma once

#include <QComboBox>

#include <span>

namespace kestrav::desktop
{

struct CodeRow
{
    const char* code;
    const char* meaning; ///< examples or an explanation
};

/// The list shows code and meaning, the field only the code. Other codes can be typed up to the
/// greatest length.
class CodeComboBox : public QComboBox
{
    Q_OBJECT

public:
    CodeComboBox(std::span<const CodeRow> rows, int most, QWidget* parent);

    [[nodiscard]] QString code() const
    {
        return currentText();
    }
    void setCode(const QString& code);
};

} // namespace kestrav::desktop

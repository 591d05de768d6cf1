#include "app/desktop/entry/CodeComboBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>

namespace kestrav::desktop
{

CodeComboBox::CodeComboBox(std::span<const CodeRow> rows, int most, QWidget* parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    int widest = 0;
    for (const CodeRow& row : rows) {
        const QString code = QString::fromUtf8(row.code);
        const QString meaning = tr(row.meaning);
        const QString text =
            code.isEmpty() ? meaning : QStringLiteral("%1   \u2013   %2").arg(code, meaning);
        addItem(text, code);
        widest = std::max(widest, fontMetrics().horizontalAdvance(text));
    }
    lineEdit()->setMaxLength(most);
    // Only codes stand in the field; the list is as wide as what it says.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(most + 2);
    view()->setMinimumWidth(widest + 4 * fontMetrics().height());
    connect(this, &QComboBox::activated, this,
            [this](int index) { setEditText(itemData(index).toString()); });
    setCode({});
}

void CodeComboBox::setCode(const QString& code)
{
    setCurrentIndex(findData(code));
    setEditText(code);
}

} // namespace kestrav::desktop

#include "app/desktop/entry/FormRows.h"

#include "app/desktop/shell/Theme.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace kestrav::desktop
{

namespace
{

constexpr int kLongestShort = 14;
constexpr int kLongestWide = 34;

void collectFields(const QLayout& layout, std::vector<QWidget*>& fields)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* const item = layout.itemAt(i);
        if (item->layout() != nullptr) {
            collectFields(*item->layout(), fields);
        } else if (item->widget() != nullptr && item->widget()->focusPolicy() != Qt::NoFocus) {
            fields.push_back(item->widget());
        }
    }
}

// Takes the Enter keys that no field and no focused button wanted.
class EnterFilter : public QObject
{
public:
    explicit EnterFilter(QDialog& dialog) : QObject(&dialog), dialog_(dialog)
    {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != &dialog_ || event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) {
            return false;
        }
        const auto* const buttons = dialog_.findChild<QDialogButtonBox*>();
        if ((key->modifiers() & Qt::ControlModifier) != 0 && buttons != nullptr) {
            buttons->button(QDialogButtonBox::Ok)->click();
        }
        return true;
    }

private:
    QDialog& dialog_;
};

} // namespace

QLineEdit* makeEdit(QWidget* parent, const char* name, int most)
{
    auto* const edit = new QLineEdit(parent);
    edit->setObjectName(QLatin1String(name));
    edit->setMaxLength(most);
    const int digit = edit->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    const int frame = 2 * digit;
    if (most <= kLongestShort) {
        edit->setFixedWidth(std::max(most, 2) * digit + frame);
    } else {
        edit->setMinimumWidth(std::min(most, kLongestWide) * digit + frame);
    }
    return edit;
}

QLabel* makeNote(QWidget* parent, const char* name)
{
    auto* const note = new QLabel(parent);
    note->setObjectName(QLatin1String(name));
    note->setWordWrap(true);
    note->setTextFormat(Qt::PlainText);
    return note;
}

void showNote(QLabel& note, QWidget& field, const QString& problem)
{
    QPalette palette = note.palette();
    palette.setColor(QPalette::WindowText, themeColour(ThemeRole::Bad));
    note.setPalette(palette);
    note.setText(problem);
    field.setAccessibleDescription(problem);
}

void addRow(QFormLayout& form, const QString& label, std::initializer_list<QWidget*> fields)
{
    QWidget* const field = *fields.begin();
    auto* const text = new QLabel(label, field->parentWidget());
    text->setBuddy(field);
    if (field->accessibleName().isEmpty()) {
        field->setAccessibleName(QString(label).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    }
    auto* const row = new QHBoxLayout;
    bool grows = false;
    for (QWidget* const each : fields) {
        const bool note = each == *(fields.end() - 1) && qobject_cast<QLabel*>(each) != nullptr;
        const bool wide = each->minimumWidth() != each->maximumWidth() &&
                          qobject_cast<QLineEdit*>(each) != nullptr;
        row->addWidget(each, note || wide ? 1 : 0);
        grows = grows || note || wide;
    }
    if (!grows) {
        row->addStretch(1);
    }
    form.addRow(text, row);
}

void tabThroughRows(const QFormLayout& form)
{
    // A form layout counts its items in the order in which they were added, which is that of the
    // rows.
    std::vector<QWidget*> fields;
    collectFields(form, fields);
    for (std::size_t i = 1; i < fields.size(); ++i) {
        QWidget::setTabOrder(fields[i - 1], fields[i]);
    }
}

void keepEnterInside(QDialog& dialog)
{
    dialog.installEventFilter(new EnterFilter(dialog));
}

} // namespace kestrav::desktop

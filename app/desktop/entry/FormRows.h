// The rows of an entry form: label, field, and beside the field what is wrong with it.
#pragma once

#include <QString>

#include <initializer_list>

class QDialog;
class QFormLayout;
class QLabel;
class QLineEdit;
class QWidget;

namespace kestrav::desktop
{

/// A line edit of that object name for at most `most` characters. Short ones are as wide as what
/// they hold, long ones take the room that there is.
[[nodiscard]] QLineEdit* makeEdit(QWidget* parent, const char* name, int most);

/// The text that says what is wrong with a field; empty at first.
[[nodiscard]] QLabel* makeNote(QWidget* parent, const char* name);

/// Shows a problem beside its field and tells screen readers; an empty one takes it away.
void showNote(QLabel& note, QWidget& field, const QString& problem);

/// Adds a row whose label belongs to the first widget. Others stand beside it and need their own
/// accessible names.
void addRow(QFormLayout& form, const QString& label, std::initializer_list<QWidget*> fields);

/// Lets Tab walk the fields of the rows from top to bottom and from left to right, whatever the
/// order in which they were made.
void tabThroughRows(const QFormLayout& form);

/// Enter in a field ends the field and does not press OK; Ctrl+Enter does. For dialogs in which
/// much is typed.
void keepEnterInside(QDialog& dialog);

} // namespace kestrav::desktop

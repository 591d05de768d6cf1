// What the user does with yogas and their files, asked for where something has to be asked.
#pragma once

#include <QObject>

class QWidget;

namespace kestrav::desktop
{

class Workspace;
class YogaDesk;

/// The commands as the menu and the form of yogas call them. Their questions stand over the widget.
class YogaCommands : public QObject
{
    Q_OBJECT

public:
    YogaCommands(Workspace& workspace, QWidget* asker);

    void NewYogaButtonClick();
    void DeleteYogaButtonClick();
    void CopyYogaButtonClick();
    void NewFileButtonClick();
    void OpenFileButtonClick();
    void SaveFileButtonClick();
    void SaveFileAsButtonClick();
    void ImportButtonClick();
    void SortButtonClick();
    void SearchButtonClick();

private:
    bool needsSelection();

    Workspace& workspace_;
    YogaDesk& desk_;
    QWidget* asker_;
};

} // namespace kestrav::desktop

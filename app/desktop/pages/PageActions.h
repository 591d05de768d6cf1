// The commands of the Pages menu.
#pragma once

#include "app/present/PageLayout.h"

#include <QObject>
#include <QUndoStack>

#include <functional>
#include <vector>

class QMenu;

namespace kestrav::desktop
{

class TKSVform1;

class PageActions : public QObject
{
    Q_OBJECT

public:
    explicit PageActions(TKSVform1& window);

private:
    void NewPageActionTriggered();
    void LayoutActionTriggered();
    void RenameActionTriggered();
    void SaveActionTriggered();
    void ResetActionTriggered();
    void ResetAllActionTriggered();
    void CloseActionTriggered();
    void fillAddMenu(QMenu& menu);
    void fillGoMenu(QMenu& menu);
    /// Does something to the pages as a step that can be taken back. Other pages stay as they are.
    void change(const QString& what, const std::function<void()>& step,
                const std::function<void()>& back);
    void add(const QString& what, const present::PageLayout& layout);
    void replace(const QString& what, int index, const present::PageLayout& layout);
    void keepMove(int from, int to);

    TKSVform1& window_;
    QUndoStack undo_;
};

} // namespace kestrav::desktop

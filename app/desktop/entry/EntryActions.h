// The commands that enter, edit and compare charts, and those about places.
#pragma once

#include <QObject>
#include <QPointer>

class QAction;

namespace kestrav::desktop
{

class DraftBar;
class TDataEntryForm;
class TKSVform1;

class EntryActions : public QObject
{
    Q_OBJECT

public:
    explicit EntryActions(TKSVform1& window);

private:
    void NewChartActionTriggered();
    void EditChartActionTriggered();
    void NowChartActionTriggered();
    void EventsActionTriggered();
    void CompareActionTriggered();
    void WorldMapActionTriggered();
    void ContinueDraftActionTriggered();
    void DiscardDraft();
    /// The form, made when it is first wanted; null while it holds changes, which it then shows.
    TDataEntryForm* freeForm();
    void showDrafts();

    TKSVform1& window_;
    QPointer<TDataEntryForm> form_;
    DraftBar* drafts_;
    QAction* continue_ = nullptr;
};

} // namespace kestrav::desktop

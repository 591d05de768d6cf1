// Printing from the File menu.
#pragma once

#include <QObject>

namespace kestrav::desktop
{

class TKSVform1;

class PrintActions : public QObject
{
    Q_OBJECT

public:
    explicit PrintActions(TKSVform1& window);

private:
    void PrintActionTriggered();
    void PdfActionTriggered();

    TKSVform1& window_;
};

} // namespace kestrav::desktop

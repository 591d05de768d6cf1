// The preview of what will be printed.
#pragma once

#include "app/desktop/printing/PaperLayout.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QPrintPreviewWidget;
class QPrinter;

namespace kestrav::desktop
{

class Workspace;

class TPrintPreviewForm : public QDialog
{
    Q_OBJECT

public:
    TPrintPreviewForm(PaperDocument document, Workspace& workspace, QWidget* parent);
    ~TPrintPreviewForm() override;

private:
    void PrintButtonClick();
    void PdfButtonClick();
    void PaperComboBoxActivated();
    void showNumber();

    PaperDocument document_;
    Workspace& workspace_;
    std::unique_ptr<QPrinter> printer_;
    QPrintPreviewWidget* preview_;
    QComboBox* paper_;
    QComboBox* orientation_;
    QLabel* number_;
};

} // namespace kestrav::desktop

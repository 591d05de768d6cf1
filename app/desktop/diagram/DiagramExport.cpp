#include "app/desktop/diagram/DiagramExport.h"

#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/SaveFile.h"
#include "app/desktop/shell/TMessages.h"
#include "app/present/AccessibleText.h"
#include "app/present/SvgWriter.h"

#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>

namespace kestrav::desktop
{

namespace
{

constexpr double kSide = 640.0;        // units of a drawing that scales
constexpr int kClipboardPixels = 1000; // of a picture in the clipboard
constexpr int kUsualPixels = 1200;
constexpr int kLeastPixels = 64;
constexpr int kMostPixels = 8000;
constexpr double kPdfMillimetres = 160.0;
constexpr int kPdfDotsPerInch = 1200;

present::DisplayList drawing(const DiagramView& view)
{
    return view.layOut(kSide, present::ColourScheme::Light);
}

QImage picture(const DiagramView& view, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(pixels / kSide, pixels / kSide);
    paintDisplayList(painter, drawing(view), view.font());
    return image;
}

QByteArray pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QString suggestedName(const present::DisplayList& list)
{
    static const QRegularExpression kUnusual(QStringLiteral("[^\\w.-]+"),
                                             QRegularExpression::UseUnicodePropertiesOption);
    QString name = toQt(list.title);
    name.replace(kUnusual, QStringLiteral("-"));
    return name + QStringLiteral(".svg");
}

} // namespace

void copyDiagram(const DiagramView& view)
{
    const present::DisplayList list = drawing(view);
    const QImage image = picture(view, kClipboardPixels);
    auto* const contents = new QMimeData;
    contents->setText(toQt(present::accessibleText(list)));
    contents->setData(QStringLiteral("image/svg+xml"),
                      QByteArray::fromStdString(present::writeSvg(list)));
    contents->setData(QStringLiteral("image/png"), pngOf(image));
    contents->setImageData(image);
    QGuiApplication::clipboard()->setMimeData(contents);
}

QByteArray diagramPng(const DiagramView& view, int pixels)
{
    return pngOf(picture(view, pixels));
}

QByteArray diagramPdf(const DiagramView& view)
{
    const present::DisplayList list = view.layOut(kSide, present::ColourScheme::Print);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kPdfDotsPerInch);
    writer.setTitle(toQt(list.title));
    writer.setPageSize(QPageSize(QSizeF(kPdfMillimetres, kPdfMillimetres), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    const double scale = std::min(writer.width(), writer.height()) / (kSide * 1.04);
    painter.scale(scale, scale);
    painter.translate(0.02 * kSide, 0.02 * kSide);
    paintDisplayList(painter, list, view.font());
    painter.end();
    return bytes;
}

void saveDiagramAs(const DiagramView& view, Workspace& workspace, QWidget* parent)
{
    const present::DisplayList list = drawing(view);
    const auto file = TMessages::fileToSave(
        parent, DiagramView::tr("Save Diagram"),
        L"Drawing (*.svg)|*.svg|Picture (*.png)|*.png|Document (*.pdf)|*.pdf", suggestedName(list));
    if (!file) {
        return;
    }
    const QString suffix = QFileInfo(*file).suffix().toLower();
    if (suffix == QLatin1String("png")) {
        const auto typed = TMessages::text(
            parent, DiagramView::tr("Size of the Picture"),
            DiagramView::tr("Pixels on each side (%1 to %2):").arg(kLeastPixels).arg(kMostPixels),
            QString::number(kUsualPixels));
        if (!typed) {
            return;
        }
        const int pixels = typed->trimmed().toInt();
        if (pixels < kLeastPixels || pixels > kMostPixels) {
            workspace.tellProblem(DiagramView::tr("'%1' is no size from %2 to %3.")
                                      .arg(*typed)
                                      .arg(kLeastPixels)
                                      .arg(kMostPixels));
            return;
        }
        saveBytes(diagramPng(view, pixels).toStdString(), *file, workspace);
    } else if (suffix == QLatin1String("pdf")) {
        saveBytes(diagramPdf(view).toStdString(), *file, workspace);
    } else {
        saveBytes(present::writeSvg(list), *file, workspace);
    }
}

} // namespace kestrav::desktop

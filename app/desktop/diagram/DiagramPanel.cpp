#include "app/desktop/diagram/DiagramPanel.h"

#include "app/desktop/diagram/DiagramContents.h"
#include "app/desktop/diagram/DiagramExport.h"
#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/TextValues.h"
#include "core/PointNames.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

// The side of a printed diagram in the units of a page.
constexpr double kPrintedSize = 360.0;

} // namespace

DiagramPanel::DiagramPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), view_(new DiagramView(this))
{
    setObjectName(QStringLiteral("DiagramPanel"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view_);
    setFocusProxy(view_);
    dependOn(OnChart);
    connect(&workspace, &Workspace::selectionChanged, view_,
            [this] { view_->setSelection(this->workspace().selection()); });
    view_->setSelection(workspace.selection());
    connect(view_, &DiagramView::linkChosen, this, &DiagramPanel::choose);
    connect(view_, &DiagramView::vargaWanted, this, &DiagramPanel::setVarga);
    connect(view_, &DiagramView::styleWanted, this,
            [this](present::DiagramStyle style) { setStyle(style); });
    connect(view_, &DiagramView::degreesWanted, this,
            [this] { setDegrees(present::DegreeForm((int(degrees()) + 1) % 3)); });
    connect(view_, &DiagramView::zoomWanted, this, [this](int percent) {
        setZoom(percent);
        refreshNow();
    });
    connect(view_, &DiagramView::turned, this, &DiagramPanel::captionChanged);
    connect(view_, &DiagramView::told, &workspace, &Workspace::tell);
    makeActions();
}

void DiagramPanel::makeActions()
{
    const auto add = [this](const char* name, const QString& text, const QKeySequence& keys) {
        auto* const action = new QAction(text, this);
        action->setObjectName(QLatin1String(name));
        // The view takes the key itself; here it is only told beside the words.
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        return action;
    };
    inspect_ = add("InspectAction", tr("&Inspect"), QKeySequence(Qt::Key_Return));
    connect(inspect_, &QAction::triggered, view_, [this] { view_->inspect(view_->cursor()); });
    aspects_ = add("AspectsAction", {}, QKeySequence(Qt::Key_A));
    aspects_->setCheckable(true);
    connect(aspects_, &QAction::triggered, view_, [this] {
        if (const auto planet = view_->chosenPlanet()) {
            view_->toggleAspects(*planet);
        }
    });
    turn_ = add("FirstHouseAction", {}, {});
    connect(turn_, &QAction::triggered, view_, [this] {
        const int sign = view_->chosenSign();
        view_->turnTo(sign == 0 ? view_->firstSign() : sign);
    });
    clear_ = add("ClearSelectionAction", tr("C&lear Selection"), QKeySequence(Qt::Key_Escape));
    connect(clear_, &QAction::triggered, view_, &DiagramView::clear);
    copy_ = add("CopyDiagramAction", tr("&Copy Diagram"), QKeySequence::Copy);
    connect(copy_, &QAction::triggered, view_, &DiagramView::copy);
    save_ = add("SaveDiagramAction", tr("&Save Diagram..."), {});
    connect(save_, &QAction::triggered, this, [this] { saveDiagramAs(*view_, workspace(), this); });

    degreesMenu_ = new QMenu(tr("&Degrees"), this);
    auto* const group = new QActionGroup(degreesMenu_);
    for (const auto& [form, text] :
         {std::pair(present::DegreeForm::None, tr("&None")),
          std::pair(present::DegreeForm::Degrees, tr("&Whole Degrees")),
          std::pair(present::DegreeForm::Minutes, tr("Degrees and &Minutes"))}) {
        QAction* const action =
            degreesMenu_->addAction(text, this, [this, form = form] { setDegrees(form); });
        action->setCheckable(true);
        action->setData(int(form));
        group->addAction(action);
    }
}

QString DiagramPanel::title() const
{
    QString title = vargaTitle(panel_.varga);
    if (view_->firstSign() != 0) {
        title = tr("%1 from %2").arg(title, toQt(core::signNameLong(view_->firstSign())));
    }
    if (panel_.outer) {
        title =
            *panel_.outer == present::PanelChart::Second ? tr("%1, second chart around").arg(title)
            : *panel_.outer == present::PanelChart::Moment ? tr("%1, shared date around").arg(title)
                                                           : tr("%1, chart around").arg(title);
    }
    return title;
}

QList<QAction*> DiagramPanel::panelActions()
{
    const auto planet = view_->chosenPlanet();
    const int sign = view_->chosenSign();
    inspect_->setEnabled(view_->cursor() >= 0);
    aspects_->setText(planet ? tr("&Aspects of %1").arg(toQt(present::pointLabel(*planet)))
                             : tr("&Aspects of the Selected Planet"));
    aspects_->setEnabled(planet.has_value());
    aspects_->setChecked(planet && view_->aspects()[std::size_t(*planet)]);
    const bool back = view_->firstSign() != 0 && (sign == 0 || sign == view_->firstSign());
    turn_->setText(back ? tr("&First House at the Ascendant Again")
                   : sign == 0
                       ? tr("Make the Selected Sign the &First House")
                       : tr("Make %1 the &First House").arg(toQt(core::signNameLong(sign))));
    turn_->setEnabled(back || sign != 0);
    for (QAction* const action : degreesMenu_->actions()) {
        action->setChecked(action->data().toInt() == int(degrees()));
    }
    for (QAction* const action : {copy_, save_}) {
        action->setEnabled(view_->contents().chart != nullptr);
    }
    return {inspect_, aspects_, turn_, degreesMenu_->menuAction(), clear_, copy_, save_};
}

present::DegreeForm DiagramPanel::degrees() const
{
    return degrees_.value_or(present::DegreeForm(workspace().settings().diagramDegrees));
}

void DiagramPanel::setDegrees(present::DegreeForm form)
{
    degrees_ = form;
    markDue();
}

ChartPointer DiagramPanel::outerChart() const
{
    if (!panel_.outer) {
        return nullptr;
    }
    switch (*panel_.outer) {
    case present::PanelChart::Second:
        return workspace().secondChart();
    case present::PanelChart::Moment:
        return workspace().momentChart();
    case present::PanelChart::Natal:
        break;
    }
    return workspace().chart();
}

void DiagramPanel::refresh()
{
    DiagramContents contents = diagramContents(workspace(), panel_, chart());
    contents.outer = outerChart();
    contents.options.degrees = degrees();
    view_->setZoom(zoom());
    view_->setContents(std::move(contents));
}

std::vector<present::Block> DiagramPanel::blocks()
{
    refreshNow();
    if (!view_->contents().chart) {
        return {present::Paragraph{toWide(view_->contents().note)}};
    }
    present::Drawing drawing;
    drawing.list = view_->layOut(kPrintedSize, present::ColourScheme::Print);
    drawing.text = view_->drawnWithCharacters();
    return {present::DrawingRow{{std::move(drawing)}}};
}

} // namespace kestrav::desktop

#include "app/desktop/pages/PanelCell.h"

#include "analysis/VargaNames.h"
#include "app/desktop/pages/PanelFactory.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/Convert.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

constexpr int kZoomStep = 10;

// What the chooser of divisions shows where there is room, and in a narrow cell; its list shows
// everything.
constexpr int kVargaLetters = 12;
constexpr int kFewestLetters = 11;

void leaveRoom(QComboBox& chooser)
{
    chooser.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser.setMinimumContentsLength(kVargaLetters);
    chooser.setMinimumWidth(chooser.fontMetrics().averageCharWidth() * kFewestLetters);
    chooser.view()->setMinimumWidth(chooser.view()->sizeHintForColumn(0));
}

constexpr int kFewestOfCaption = 5; ///< letters of a shortened caption that still say something

// Ends in dots where there is too little room; its tip says everything.
class CaptionText : public QLabel
{
public:
    using QLabel::QLabel;

    // It shares a narrow bar with the choosers beside it; a short caption stays whole.
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        const QSize whole = QLabel::minimumSizeHint();
        const int few = fontMetrics().averageCharWidth() * (kFewestOfCaption + 1);
        return {whole.width() <= few ? whole.width() : 0, whole.height()};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        if (shown != text() && shown.size() < kFewestOfCaption) {
            return;
        }
        QPainter painter(this);
        style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                              isEnabled(), shown, foregroundRole());
    }
};

// What follows the name of a division, as a caption of its own.
QString withoutBrackets(QString text)
{
    static const QRegularExpression around(QStringLiteral("^[ ,(]+|[)]$"));
    text.remove(around);
    if (!text.isEmpty()) {
        text.front() = text.front().toUpper();
    }
    return text;
}

QToolButton* barButton(const QString& text, const QString& name, const QString& tip,
                       QWidget* parent)
{
    auto* const button = new QToolButton(parent);
    button->setText(text);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    return button;
}

} // namespace

PanelCell::PanelCell(Workspace& workspace, const present::Panel& panel, QWidget* parent)
    : QFrame(parent), workspace_(workspace), panel_(makePanel(workspace, panel, this)),
      caption_(new CaptionText(this))
{
    setFrameShape(StyledPanel);
    setObjectName(QStringLiteral("PanelCell"));
    caption_->setObjectName(QStringLiteral("CaptionLabel"));
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    caption_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    bar_ = new QHBoxLayout;
    const int gap = fontMetrics().height() / 4;
    bar_->setContentsMargins(gap * 2, gap / 2, gap / 2, gap / 2);
    bar_->setSpacing(gap);
    bar_->addWidget(caption_);
    if (panel_->hasVarga()) {
        varga_ = new QComboBox(this);
        varga_->setObjectName(QStringLiteral("VargaComboBox"));
        varga_->setAccessibleName(tr("Divisional chart"));
        varga_->setToolTip(tr("Divisional chart"));
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            varga_->addItem(vargaTitle(varga));
        }
        varga_->setFrame(false);
        leaveRoom(*varga_);
        connect(varga_, &QComboBox::activated, this, [this](int varga) {
            panel_->setVarga(varga);
            emit changed();
        });
        bar_->addWidget(varga_);
    }
    if (panel_->hasStyle()) {
        style_ = new QComboBox(this);
        style_->setObjectName(QStringLiteral("StyleComboBox"));
        style_->setAccessibleName(tr("Style of the diagram"));
        style_->setToolTip(tr("Style of the diagram"));
        style_->addItem(tr("Standard"));
        for (int style = 0; style < present::kDiagramStyles; ++style) {
            style_->addItem(
                toQt(present::diagramStyleTitle(present::DiagramStyle(style))).section(' ', 0, 0));
        }
        style_->setFrame(false);
        style_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        connect(style_, &QComboBox::activated, this, [this](int index) {
            panel_->setStyle(index == 0 ? std::nullopt
                                        : std::optional(present::DiagramStyle(index - 1)));
            emit changed();
        });
        bar_->addWidget(style_);
    }
    pin_ = barButton(QStringLiteral("\u25C9"), QStringLiteral("PinButton"),
                     tr("Keep showing this chart here"), this);
    pin_->setCheckable(true);
    connect(pin_, &QToolButton::toggled, panel_, &PanelWidget::pin);
    bar_->addWidget(pin_);
    menu_ = barButton(QStringLiteral("\u2630"), QStringLiteral("PanelMenuButton"),
                      tr("Menu of this panel"), this);
    menu_->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(menu_);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        fillMenu(*menu);
    });
    menu_->setMenu(menu);
    bar_->addWidget(menu_);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar_);
    layout->addWidget(panel_, 1);
    // Tab would go from the panel to what it names, and pass by everything between the two.
    focused_ = panel_->focusProxy();
    panel_->setFocusProxy(nullptr);
    connect(panel_, &PanelWidget::captionChanged, this, &PanelCell::showCaption);
    showCaption();
}

// A narrow cell goes without the chooser of styles, which the menu has too.
QSize PanelCell::minimumSizeHint() const
{
    const QSize whole = QFrame::minimumSizeHint();
    if (style_ == nullptr) {
        return whole;
    }
    int bar = bar_->minimumSize().width();
    if (style_->isVisibleTo(this)) {
        bar -= style_->minimumSizeHint().width() + bar_->spacing();
    }
    return {std::max(bar, panel_->minimumSizeHint().width()) + 2 * frameWidth(), whole.height()};
}

void PanelCell::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    if (style_ != nullptr) {
        style_->setVisible(width() >= minimumSizeHint().width() +
                                          style_->minimumSizeHint().width() + bar_->spacing());
    }
}

QString PanelCell::captionText() const
{
    QString text = panel_->title();
    if (panel_->pinnedChart()) {
        return tr("%1 (%2)").arg(text, toQt(panel_->pinnedChart()->chart.name));
    }
    switch (panel_->panel().chart) {
    case present::PanelChart::Second:
        return tr("%1 (second chart)").arg(text);
    case present::PanelChart::Moment:
        return tr("%1 (shared date)").arg(text);
    case present::PanelChart::Natal:
        break;
    }
    return text;
}

void PanelCell::focusPanel()
{
    (focused_ != nullptr ? focused_.data() : panel_)->setFocus(Qt::TabFocusReason);
}

void PanelCell::showCaption()
{
    const QString text = captionText();
    // Where the chooser beside it says the same, the caption would only take room.
    QString shown = text;
    if (varga_ != nullptr) {
        const QString said = varga_->itemText(panel_->panel().varga);
        if (text.startsWith(said)) {
            shown = withoutBrackets(text.mid(said.size()));
        }
    }
    caption_->setText(shown);
    caption_->setToolTip(text);
    panel_->setAccessibleName(text);
    if (varga_ != nullptr) {
        varga_->setCurrentIndex(panel_->panel().varga);
    }
    if (style_ != nullptr) {
        const auto style = panel_->panel().style;
        style_->setCurrentIndex(style ? int(*style) + 1 : 0);
    }
}

void PanelCell::fillMenu(QMenu& menu)
{
    menu.addActions(panel_->panelActions());
    if (!menu.isEmpty()) {
        menu.addSeparator();
    }
    menu.addAction(tr("&Larger"), panel_, [this] { panel_->setZoom(panel_->zoom() + kZoomStep); });
    menu.addAction(tr("S&maller"), panel_, [this] { panel_->setZoom(panel_->zoom() - kZoomStep); });
    if (style_ != nullptr) {
        QMenu* const styles = menu.addMenu(tr("St&yle"));
        for (int i = 0; i < style_->count(); ++i) {
            QAction* const style = styles->addAction(style_->itemText(i));
            style->setCheckable(true);
            style->setChecked(i == style_->currentIndex());
            connect(style, &QAction::triggered, style_, [this, i] {
                style_->setCurrentIndex(i);
                emit style_->activated(i);
            });
        }
    }
    QAction* const keep = menu.addAction(tr("&Keep This Chart"));
    keep->setCheckable(true);
    keep->setChecked(pin_->isChecked());
    connect(keep, &QAction::toggled, pin_, &QToolButton::setChecked);
    // Other panels are chosen where the page is composed.
    if (auto* const compose = window()->findChild<QAction*>(QStringLiteral("PageLayoutAction"))) {
        menu.addAction(compose);
    }
    menu.addSeparator();
    menu.addAction(tr("&Help on This Panel"), &workspace_,
                   [this] { emit workspace_.helpWanted(panel_->helpName()); });
}

void PanelCell::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    fillMenu(menu);
    menu.exec(event->globalPos());
}

} // namespace kestrav::desktop

#include "app/desktop/palette/TPaletteDlg.h"

#include "analysis/VargaNames.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/help/CommandNames.h"
#include "app/desktop/options/SettingRows.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/palette/PaletteMatch.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/Theme.h"
#include "core/PointNames.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::size_t kMostShown = 60;
constexpr int kLongName = 4;
constexpr int kEntryRole = Qt::UserRole;
constexpr int kKindRole = Qt::UserRole + 1;
constexpr int kKeysRole = Qt::UserRole + 2;

// A row: what is found on the left, of what kind and with which keys in columns on the right.
class EntryDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, index);
        ground.text.clear();
        ground.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter,
                                            ground.widget);
        const QFontMetrics& metrics = option.fontMetrics;
        const int gap = metrics.height() / 2;
        QRect room = option.rect.adjusted(gap / 2, 0, -gap / 2, 0);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const QColor words =
            option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
        painter->save();
        painter->setPen(selected ? words : themeColour(ThemeRole::Quiet));
        for (const auto& [role, letters] : {std::pair(kKeysRole, 17), std::pair(kKindRole, 11)}) {
            const int width = metrics.averageCharWidth() * letters;
            const QRect column(room.right() - width + 1, room.top(), width, room.height());
            painter->drawText(
                column, Qt::AlignVCenter | Qt::AlignRight,
                metrics.elidedText(index.data(role).toString(), Qt::ElideRight, width));
            room.setRight(column.left() - gap);
        }
        painter->setPen(words);
        painter->drawText(
            room, Qt::AlignVCenter | Qt::AlignLeft,
            metrics.elidedText(index.data().toString(), Qt::ElideRight, room.width()));
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), size.height() + option.fontMetrics.height() / 3};
    }
};

void addCommands(TKSVform1& window, std::vector<PaletteEntry>& entries)
{
    for (const CommandName& command : commandNames(window)) {
        if (command.action->isEnabled()) {
            entries.push_back({command.name, TPaletteDlg::tr("Command"),
                               command.action->shortcut().toString(QKeySequence::NativeText),
                               [action = command.action] { action->trigger(); }, command.menu});
        }
    }
}

void addPages(TKSVform1& window, std::vector<PaletteEntry>& entries)
{
    for (int page = 0; page < window.pages().count(); ++page) {
        entries.push_back({window.pages().name(page), TPaletteDlg::tr("Page"), {}, [&window, page] {
                               window.pages().show(page);
                           }});
    }
}

void addCharts(TKSVform1& window, std::vector<PaletteEntry>& entries)
{
    for (const data::ChooserRow& row : window.workspace().database().list().rows) {
        entries.push_back(
            {toQt(row.name), TPaletteDlg::tr("Chart"), {}, [&window, line = row.line] {
                 window.workspace().showLine(line);
             }});
    }
}

void addSettings(TKSVform1& window, std::vector<PaletteEntry>& entries)
{
    for (const core::SettingInfo& setting : core::settingsTable()) {
        const QString name = toQt(std::string(setting.name));
        entries.push_back({settingLabel(settingRow(setting.name)) + QStringLiteral(": ") +
                               toQt(std::string(setting.meaning)),
                           TPaletteDlg::tr("Setting"),
                           {},
                           [&window, name] {
                               emit window.workspace().settingWanted(name);
                           }});
    }
}

void addPoints(TKSVform1& window, std::vector<PaletteEntry>& entries)
{
    if (!window.workspace().chart()) {
        return;
    }
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        const QString name = toQt(core::PointName(kLongName, point)).trimmed();
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            entries.push_back({TPaletteDlg::tr("%1 in %2 (D-%3)")
                                   .arg(name, vargaTitle(varga))
                                   .arg(analysis::vargaDivision(varga)),
                               TPaletteDlg::tr("Point"),
                               {},
                               [&window, point, varga] {
                                   present::Link link;
                                   link.subject = present::Subject::Point;
                                   link.index = point;
                                   link.varga = varga;
                                   window.workspace().select(link);
                               }});
        }
    }
}

} // namespace

std::vector<PaletteEntry> paletteEntries(TKSVform1& window)
{
    std::vector<PaletteEntry> entries;
    addCommands(window, entries);
    addPages(window, entries);
    addSettings(window, entries);
    addPoints(window, entries);
    addCharts(window, entries);
    return entries;
}

TPaletteDlg::TPaletteDlg(TKSVform1& window)
    : QDialog(&window), entries_(paletteEntries(window)), find_(new QLineEdit(this)),
      list_(new QListWidget(this))
{
    setObjectName(QStringLiteral("TPaletteDlg"));
    setWindowTitle(tr("Find Anything"));
    find_->setObjectName(QStringLiteral("FindEdit"));
    find_->setAccessibleName(tr("Find commands, charts, pages, settings and points"));
    find_->setPlaceholderText(tr("Commands, charts, pages, settings, points (Mars in D-9)"));
    find_->installEventFilter(this);
    list_->setObjectName(QStringLiteral("EntryList"));
    list_->setAccessibleName(tr("What was found"));
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setItemDelegate(new EntryDelegate(list_));
    list_->setFocusPolicy(Qt::NoFocus);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(find_);
    box->addWidget(list_, 1);
    connect(find_, &QLineEdit::textChanged, this, &TPaletteDlg::FindEditTextChanged);
    connect(find_, &QLineEdit::returnPressed, this, &TPaletteDlg::choose);
    connect(list_, &QListWidget::itemClicked, this, &TPaletteDlg::choose);
    resize(fontMetrics().height() * 38, fontMetrics().height() * 26);
    FindEditTextChanged();
}

void TPaletteDlg::FindEditTextChanged()
{
    std::vector<std::pair<int, std::size_t>> found;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (const auto worth = paletteMatch(find_->text(), entries_[i].text)) {
            found.emplace_back(-*worth, i);
        }
    }
    const std::size_t shown = std::min(found.size(), kMostShown);
    std::partial_sort(found.begin(), found.begin() + std::ptrdiff_t(shown), found.end());
    list_->clear();
    for (std::size_t i = 0; i < shown; ++i) {
        const PaletteEntry& entry = entries_[found[i].second];
        auto* const item = new QListWidgetItem(entry.text, list_);
        item->setData(kEntryRole, qulonglong(found[i].second));
        const QString kind = entry.menu.isEmpty() ? entry.kind : tr("%1 menu").arg(entry.menu);
        item->setData(kKindRole, kind);
        item->setData(kKeysRole, entry.keys);
        QStringList spoken = {entry.text, kind, entry.keys};
        spoken.removeAll(QString());
        item->setData(Qt::AccessibleTextRole, spoken.join(QStringLiteral(", ")));
        item->setToolTip(entry.text);
    }
    list_->setCurrentRow(0);
}

bool TPaletteDlg::eventFilter(QObject* watched, QEvent* event)
{
    // The arrows move through the list while one types.
    if (watched == find_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int step = key == Qt::Key_Down       ? 1
                         : key == Qt::Key_Up       ? -1
                         : key == Qt::Key_PageDown ? 10
                         : key == Qt::Key_PageUp   ? -10
                                                   : 0;
        if (step != 0 && list_->count() > 0) {
            list_->setCurrentRow(std::clamp(list_->currentRow() + step, 0, list_->count() - 1));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void TPaletteDlg::choose()
{
    const QListWidgetItem* const item = list_->currentItem();
    if (item == nullptr) {
        return;
    }
    // After the palette has gone: a command may open a dialog of its own.
    QTimer::singleShot(0, parentWidget(),
                       entries_[std::size_t(item->data(kEntryRole).toULongLong())].choose);
    accept();
}

} // namespace kestrav::desktop

#include "app/desktop/pages/TPageLayoutDlg.h"

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/TableCatalogue.h"
#include "core/Varga.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using present::Panel;
using present::PanelKind;

QString capitalised(const QString& text)
{
    return text.isEmpty() ? text : text.left(1).toUpper() + text.mid(1);
}

QString viewTitle(const std::string& name)
{
    return capitalised(toQt(name).replace('-', ' '));
}

QString titleOf(const Panel& panel)
{
    switch (panel.kind) {
    case PanelKind::Diagram:
        return TPageLayoutDlg::tr("Diagram: %1").arg(vargaTitle(panel.varga));
    case PanelKind::Table:
        return capitalised(toQt(std::wstring(present::findTable(panel.content)->meaning)));
    case PanelKind::Text:
        return TPageLayoutDlg::tr("Text: %1").arg(toQt(panel.content));
    case PanelKind::View:
        break;
    }
    return viewTitle(panel.content);
}

bool covers(const Panel& panel, int row, int column)
{
    return row >= panel.row && row < panel.row + panel.rows && column >= panel.column &&
           column < panel.column + panel.columns;
}

Panel diagramAt(int row, int column)
{
    Panel panel;
    panel.kind = PanelKind::Diagram;
    panel.row = row;
    panel.column = column;
    return panel;
}

// Takes a line out of the grid: panels over it lose a part, those that only stood there go.
void dropLine(present::PageLayout& layout, bool rows, int line)
{
    std::vector<Panel> kept;
    for (Panel panel : layout.panels) {
        int& first = rows ? panel.row : panel.column;
        int& count = rows ? panel.rows : panel.columns;
        if (first <= line && line < first + count) {
            --count;
        } else if (first > line) {
            --first;
        }
        if (count > 0) {
            kept.push_back(panel);
        }
    }
    layout.panels = std::move(kept);
    std::vector<int>& weights = rows ? layout.rowWeights : layout.columnWeights;
    weights.erase(weights.begin() + line);
}

} // namespace

TPageLayoutDlg::TPageLayoutDlg(present::PageLayout layout, QWidget* parent)
    : QDialog(parent), layout_(std::move(layout)), name_(new QLineEdit(this)),
      grid_(new QTableWidget(this)), content_(new QComboBox(this)), varga_(new QComboBox(this)),
      chart_(new QComboBox(this)), outer_(new QComboBox(this)), rowWeight_(new QSpinBox(this)),
      columnWeight_(new QSpinBox(this)), problem_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Compose Page"));
    setObjectName(QStringLiteral("TPageLayoutDlg"));
    name_->setObjectName(QStringLiteral("NameEdit"));
    name_->setText(toQt(layout_.name));
    grid_->setObjectName(QStringLiteral("PageGrid"));
    grid_->setAccessibleName(tr("Cells of the page"));
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid_->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid_->setMinimumSize(fontMetrics().height() * 34, fontMetrics().height() * 15);
    grid_->setTabKeyNavigation(false);
    grid_->setWordWrap(true);
    makeContentChooser();
    for (QSpinBox* const weight : {rowWeight_, columnWeight_}) {
        weight->setRange(1, 100);
    }
    rowWeight_->setObjectName(QStringLiteral("RowWeightSpinBox"));
    columnWeight_->setObjectName(QStringLiteral("ColumnWeightSpinBox"));
    problem_->setObjectName(QStringLiteral("ProblemLabel"));
    problem_->setWordWrap(true);

    const auto button = [this](const QString& text, const char* name, auto handler) {
        auto* const made = new QPushButton(text, this);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, handler);
        return made;
    };
    auto* const lines = new QHBoxLayout;
    lines->addWidget(button(tr("Add Ro&w"), "AddRowButton", [this] { changeLines(true, 1); }));
    lines->addWidget(
        button(tr("Remo&ve Row"), "RemoveRowButton", [this] { changeLines(true, -1); }));
    lines->addWidget(
        button(tr("Add Co&lumn"), "AddColumnButton", [this] { changeLines(false, 1); }));
    lines->addWidget(
        button(tr("Re&move Column"), "RemoveColumnButton", [this] { changeLines(false, -1); }));
    lines->addStretch(1);
    lines->addWidget(button(tr("&Join Cells"), "JoinButton", [this] { JoinButtonClick(); }));
    lines->addWidget(button(tr("&Split Cell"), "SplitButton", [this] { SplitButtonClick(); }));

    // The buttons below the grid come before the fields below them.
    QWidget* before = grid_;
    for (int i = 0; i < lines->count(); ++i) {
        if (QWidget* const next = lines->itemAt(i)->widget()) {
            setTabOrder(before, next);
            before = next;
        }
    }

    auto* const form = new QFormLayout;
    form->addRow(tr("&Panel:"), content_);
    form->addRow(tr("&Divisional chart:"), varga_);
    form->addRow(tr("&Chart:"), chart_);
    form->addRow(tr("&Around it:"), outer_);
    form->addRow(tr("Share of the &height:"), rowWeight_);
    form->addRow(tr("Share of the w&idth:"), columnWeight_);

    auto* const top = new QFormLayout;
    top->addRow(tr("&Name of the page:"), name_);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(top);
    box->addWidget(grid_, 1);
    box->addLayout(lines);
    box->addLayout(form);
    box->addWidget(problem_);
    box->addWidget(buttons_);

    connect(name_, &QLineEdit::textChanged, this, [this] {
        layout_.name = toUtf8(name_->text().simplified());
        check();
    });
    connect(grid_, &QTableWidget::itemSelectionChanged, this, &TPageLayoutDlg::showSelected);
    connect(rowWeight_, &QSpinBox::valueChanged, this, [this](int weight) {
        if (!filling_ && grid_->currentRow() >= 0) {
            layout_.rowWeights[std::size_t(grid_->currentRow())] = weight;
        }
    });
    connect(columnWeight_, &QSpinBox::valueChanged, this, [this](int weight) {
        if (!filling_ && grid_->currentColumn() >= 0) {
            layout_.columnWeights[std::size_t(grid_->currentColumn())] = weight;
        }
    });
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showGrid();
    name_->setFocus();
}

void TPageLayoutDlg::makeContentChooser()
{
    content_->setObjectName(QStringLiteral("ContentComboBox"));
    varga_->setObjectName(QStringLiteral("VargaComboBox"));
    chart_->setObjectName(QStringLiteral("ChartComboBox"));
    outer_->setObjectName(QStringLiteral("OuterComboBox"));
    const auto add = [this](const QString& text, PanelKind kind, std::string_view name) {
        content_->addItem(text, QStringList{QString::number(int(kind)), toQt(std::string(name))});
    };
    add(tr("Diagram"), PanelKind::Diagram, "");
    for (const std::string_view view : present::panelViews()) {
        add(viewTitle(std::string(view)), PanelKind::View, view);
    }
    content_->insertSeparator(content_->count());
    for (const std::string_view text : present::panelTexts()) {
        add(tr("Text: %1").arg(toQt(std::string(text))), PanelKind::Text, text);
    }
    content_->insertSeparator(content_->count());
    for (const present::TableInfo& table : present::allTables()) {
        add(capitalised(toQt(std::wstring(table.meaning))), PanelKind::Table, table.id);
    }
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        varga_->addItem(vargaTitle(varga));
    }
    chart_->addItems({tr("Shown chart"), tr("Second chart"), tr("Sky of the shared date")});
    outer_->addItems(
        {tr("Nothing"), tr("Shown chart"), tr("Second chart"), tr("Sky of the shared date")});
    for (QComboBox* const chooser : {content_, varga_, chart_, outer_}) {
        connect(chooser, &QComboBox::activated, this, &TPageLayoutDlg::ContentComboBoxActivated);
    }
}

void TPageLayoutDlg::showGrid()
{
    const int row = std::max(0, grid_->currentRow());
    const int column = std::max(0, grid_->currentColumn());
    filling_ = true;
    grid_->clear();
    grid_->clearSpans();
    grid_->setRowCount(int(layout_.rowWeights.size()));
    grid_->setColumnCount(int(layout_.columnWeights.size()));
    for (const Panel& panel : layout_.panels) {
        auto* const item = new QTableWidgetItem(titleOf(panel));
        item->setTextAlignment(Qt::AlignCenter);
        grid_->setItem(panel.row, panel.column, item);
        if (panel.rows > 1 || panel.columns > 1) {
            grid_->setSpan(panel.row, panel.column, panel.rows, panel.columns);
        }
    }
    grid_->setCurrentCell(std::min(row, grid_->rowCount() - 1),
                          std::min(column, grid_->columnCount() - 1));
    filling_ = false;
    showSelected();
    check();
}

Panel* TPageLayoutDlg::selectedPanel()
{
    const auto found =
        std::find_if(layout_.panels.begin(), layout_.panels.end(), [this](const Panel& panel) {
            return covers(panel, grid_->currentRow(), grid_->currentColumn());
        });
    return found == layout_.panels.end() ? nullptr : &*found;
}

void TPageLayoutDlg::showSelected()
{
    if (filling_ || grid_->currentRow() < 0 || grid_->currentColumn() < 0) {
        return;
    }
    filling_ = true;
    rowWeight_->setValue(layout_.rowWeights[std::size_t(grid_->currentRow())]);
    columnWeight_->setValue(layout_.columnWeights[std::size_t(grid_->currentColumn())]);
    if (const Panel* const panel = selectedPanel()) {
        content_->setCurrentIndex(content_->findData(
            QStringList{QString::number(int(panel->kind)), toQt(panel->content)}));
        varga_->setCurrentIndex(panel->varga);
        chart_->setCurrentIndex(int(panel->chart));
        outer_->setCurrentIndex(panel->outer ? int(*panel->outer) + 1 : 0);
        const bool computed = panel->kind == PanelKind::Diagram || panel->kind == PanelKind::Table;
        varga_->setEnabled(computed);
        chart_->setEnabled(computed);
        outer_->setEnabled(panel->kind == PanelKind::Diagram);
    }
    filling_ = false;
}

void TPageLayoutDlg::ContentComboBoxActivated()
{
    Panel* const panel = selectedPanel();
    const QStringList chosen = content_->currentData().toStringList();
    if (panel == nullptr || chosen.size() != 2) {
        return;
    }
    panel->kind = PanelKind(chosen[0].toInt());
    panel->content = toUtf8(chosen[1]);
    const bool computed = panel->kind == PanelKind::Diagram || panel->kind == PanelKind::Table;
    panel->varga = computed ? varga_->currentIndex() : 0;
    panel->chart =
        computed ? present::PanelChart(chart_->currentIndex()) : present::PanelChart::Natal;
    panel->outer.reset();
    if (panel->kind == PanelKind::Diagram) {
        if (outer_->currentIndex() > 0) {
            panel->outer = present::PanelChart(outer_->currentIndex() - 1);
        }
    } else {
        panel->style.reset();
    }
    showGrid();
}

void TPageLayoutDlg::JoinButtonClick()
{
    int top = grid_->rowCount();
    int left = grid_->columnCount();
    int bottom = 0;
    int right = 0;
    for (const QModelIndex& index : grid_->selectionModel()->selectedIndexes()) {
        for (const Panel& panel : layout_.panels) {
            if (covers(panel, index.row(), index.column())) {
                top = std::min(top, panel.row);
                left = std::min(left, panel.column);
                bottom = std::max(bottom, panel.row + panel.rows);
                right = std::max(right, panel.column + panel.columns);
            }
        }
    }
    if (top >= bottom || left >= right) {
        return;
    }
    std::vector<Panel> kept;
    std::optional<Panel> joined;
    for (const Panel& panel : layout_.panels) {
        const bool inside = panel.row >= top && panel.row + panel.rows <= bottom &&
                            panel.column >= left && panel.column + panel.columns <= right;
        const bool outside = panel.row >= bottom || panel.row + panel.rows <= top ||
                             panel.column >= right || panel.column + panel.columns <= left;
        if (!inside && !outside) {
            problem_->setText(tr("The selected cells are no rectangle."));
            return;
        }
        if (inside && !joined) {
            joined = panel;
        } else if (outside) {
            kept.push_back(panel);
        }
    }
    joined->row = top;
    joined->column = left;
    joined->rows = bottom - top;
    joined->columns = right - left;
    kept.push_back(*joined);
    layout_.panels = std::move(kept);
    showGrid();
}

void TPageLayoutDlg::SplitButtonClick()
{
    Panel* const panel = selectedPanel();
    if (panel == nullptr) {
        return;
    }
    const Panel whole = *panel;
    panel->rows = 1;
    panel->columns = 1;
    for (int row = whole.row; row < whole.row + whole.rows; ++row) {
        for (int column = whole.column; column < whole.column + whole.columns; ++column) {
            if (row != whole.row || column != whole.column) {
                layout_.panels.push_back(diagramAt(row, column));
            }
        }
    }
    showGrid();
}

void TPageLayoutDlg::changeLines(bool rows, int change)
{
    std::vector<int>& weights = rows ? layout_.rowWeights : layout_.columnWeights;
    const int count = int(weights.size()) + change;
    if (count < 1 || count > present::kMostGridLines) {
        return;
    }
    if (change < 0) {
        dropLine(layout_, rows, std::max(0, rows ? grid_->currentRow() : grid_->currentColumn()));
    } else {
        weights.push_back(1);
        const std::size_t others = rows ? layout_.columnWeights.size() : layout_.rowWeights.size();
        for (std::size_t i = 0; i < others; ++i) {
            layout_.panels.push_back(rows ? diagramAt(count - 1, int(i))
                                          : diagramAt(int(i), count - 1));
        }
    }
    showGrid();
}

void TPageLayoutDlg::check()
{
    QString problem;
    if (layout_.name.empty()) {
        problem = tr("The page needs a name.");
    } else if (const auto checked = present::checkPageLayout(layout_); !checked) {
        problem = toQt(checked.error().text());
    }
    problem_->setText(problem);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

} // namespace kestrav::desktop

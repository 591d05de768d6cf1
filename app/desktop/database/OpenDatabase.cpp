#include "app/desktop/database/OpenDatabase.h"

#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/BirthRecord.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/DatabaseMessages.h"

#include <QEventLoop>
#include <QFileSystemWatcher>
#include <QTimer>
#include <QUndoCommand>

#include <algorithm>
#include <chrono>
#include <unistd.h>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using data::Outcome;

// Steps of more lines are shown by reading the whole list anew.
constexpr std::size_t kFewLines = 200;

// Programs that save write a file in several steps.
constexpr std::chrono::milliseconds kLookAfter{300};

std::vector<LineEdit> backwards(const std::vector<LineEdit>& edits)
{
    std::vector<LineEdit> turned(edits.rbegin(), edits.rend());
    for (LineEdit& edit : turned) {
        std::swap(edit.before, edit.after);
    }
    return turned;
}

// What the commands of the data floor did: they replace lines and add some at the end.
std::vector<LineEdit> differences(const data::ChartDatabase& before,
                                  const data::ChartDatabase& after)
{
    std::vector<LineEdit> edits;
    for (std::size_t i = 0; i < after.size(); ++i) {
        const bool known = i < before.size();
        if (!known || before.line(i) != after.line(i)) {
            edits.push_back({i, std::nullopt, std::string(after.line(i))});
            if (known) {
                edits.back().before = before.line(i);
            }
        }
    }
    return edits;
}

} // namespace

// One step of the user. The first time it is pushed its lines are changed already.
class OpenDatabase::Step : public QUndoCommand
{
public:
    Step(const QString& text, OpenDatabase& database, std::vector<LineEdit> edits)
        : QUndoCommand(text), database_(database), edits_(std::move(edits))
    {}

    void undo() override
    {
        database_.apply(backwards(edits_));
    }
    void redo() override
    {
        if (std::exchange(applied_, true)) {
            database_.apply(edits_);
        }
    }

private:
    OpenDatabase& database_;
    std::vector<LineEdit> edits_;
    bool applied_ = false;
};

OpenDatabase::OpenDatabase(data::DateOrder order, QObject* parent)
    : QObject(parent), charts_(order), watcher_(new QFileSystemWatcher(this)),
      lookTimer_(new QTimer(this)), saving_(new BackgroundWork(this))
{
    settings_.monthFirst = order == data::DateOrder::MonthFirst;
    lookTimer_->setSingleShot(true);
    lookTimer_->setInterval(kLookAfter);
    connect(watcher_, &QFileSystemWatcher::fileChanged, lookTimer_, qOverload<>(&QTimer::start));
    connect(lookTimer_, &QTimer::timeout, this, &OpenDatabase::lookAtFile);
    connect(&undo_, &QUndoStack::cleanChanged, this, &OpenDatabase::modifiedChanged);
    const auto count = [this] {
        ++revision_;
    };
    connect(this, &OpenDatabase::reset, this, count);
    connect(this, &OpenDatabase::linesEdited, this, count);
}

OpenDatabase::~OpenDatabase() = default;

core::Result<void> OpenDatabase::load(const std::filesystem::path& path)
{
    Content content{data::ChartDatabase(charts_.order()), {}};
    core::Result<void> loaded = content.charts.load(path);
    if (loaded) {
        content.list = data::listCharts(content.charts);
        adopt(std::move(content));
    }
    return loaded;
}

void OpenDatabase::adopt(Content content)
{
    waitForSave();
    charts_ = std::move(content.charts);
    list_ = std::move(content.list);
    undo_.clear();
    watch();
    emit reset();
    emit opened();
    emit modifiedChanged();
}

void OpenDatabase::follow(const core::Settings& settings)
{
    // Lines that were just turned have the order already.
    if (settings.monthFirst != settings_.monthFirst &&
        charts_.order() != present::dateOrder(settings)) {
        charts_.setOrder(present::dateOrder(settings));
        relist();
        emit reset();
    }
    settings_ = settings;
}

bool OpenDatabase::writable() const
{
    const std::filesystem::path folder = path().has_parent_path() ? path().parent_path() : ".";
    return !path().empty() && ::access(folder.c_str(), W_OK) == 0 &&
           (::access(path().c_str(), F_OK) != 0 || ::access(path().c_str(), W_OK) == 0);
}

std::optional<std::size_t> OpenDatabase::rowOf(std::size_t line) const
{
    const auto row =
        std::lower_bound(list_.rows.begin(), list_.rows.end(), line,
                         [](const data::ChooserRow& one, std::size_t at) { return one.line < at; });
    return row == list_.rows.end() || row->line != line
               ? std::nullopt
               : std::optional(std::size_t(row - list_.rows.begin()));
}

std::optional<core::Chart> OpenDatabase::record(std::size_t line)
{
    if (line >= charts_.size() || data::isShortLine(charts_.line(line))) {
        return std::nullopt;
    }
    core::Chart chart;
    charts_.read(line, chart);
    return chart;
}

std::optional<std::size_t> OpenDatabase::saveRecord(const core::Chart& chart,
                                                    core::Messages& messages,
                                                    std::optional<std::size_t> own)
{
    SettledMessages settled(messages, settings_);
    core::Chart clean = chart;
    data::cleanRecord(clean);
    const std::optional<std::size_t> known = data::lineOfName(charts_, clean.name, own);
    std::optional<std::string> before;
    if (known) {
        before = charts_.line(*known);
    }
    const std::size_t size = charts_.size();
    const std::optional<std::size_t> line =
        data::saveChart(charts_, chart, {settings_.confirmShortYear}, settled, own);
    if (!line) {
        return std::nullopt;
    }
    const bool added = charts_.size() > size;
    const QString name = toQt(clean.name);
    std::vector<LineEdit> edits = {
        {*line, added ? std::nullopt : std::move(before), std::string(charts_.line(*line))}};
    applyToList(edits.front());
    pushStep(added ? tr("Add %1").arg(name) : tr("Change %1").arg(name), edits);
    emit linesEdited(edits);
    return line;
}

bool OpenDatabase::deleteRecord(std::size_t line)
{
    if (line >= charts_.size()) {
        return false;
    }
    deleteRecords({line});
    return true;
}

bool OpenDatabase::deleteRecord(std::optional<std::size_t> line, core::Messages& messages)
{
    if (!line || *line >= charts_.size()) {
        messages.notice(data::kNoticeCaption, data::kNotSavedYet);
        return false;
    }
    const std::wstring name = data::nameOfLine(charts_.line(*line));
    if (settings_.confirmDelete && messages.show(data::kNoticeCaption, data::deleteQuestion(name),
                                                 core::Buttons::YesNo) != core::Answer::Yes) {
        return false;
    }
    return deleteRecord(*line);
}

void OpenDatabase::deleteRecords(std::vector<std::size_t> lines)
{
    // From the end, so that the lines still to go keep their numbers.
    std::sort(lines.begin(), lines.end(), std::greater<>());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    std::vector<LineEdit> edits;
    for (const std::size_t line : lines) {
        if (line < charts_.size()) {
            edits.push_back({line, std::string(charts_.line(line)), std::nullopt});
        }
    }
    if (edits.empty()) {
        return;
    }
    const QString text = edits.size() == 1
                             ? tr("Delete %1").arg(toQt(data::nameOfLine(*edits.front().before)))
                             : tr("Delete %1 Charts").arg(edits.size());
    apply(edits);
    pushStep(text, std::move(edits));
}

bool OpenDatabase::renameRecord(std::size_t line, const QString& name, QString& problem)
{
    std::optional<core::Chart> chart = record(line);
    if (!chart) {
        return false;
    }
    const std::wstring old = chart->name;
    chart->name = data::cleanText(toWide(name.simplified()), data::kNameLength);
    if (chart->name == old) {
        return true;
    }
    if (!data::hasLetterOrDigit(chart->name)) {
        problem = tr("A name needs a letter or a digit.");
        return false;
    }
    if (charts_.find(chart->name)) {
        problem = tr("There is a chart named %1 already.").arg(toQt(chart->name));
        return false;
    }
    std::vector<LineEdit> edits = {
        {line, std::string(charts_.line(line)), data::FormatChartLine(*chart, charts_.order())}};
    apply(edits);
    pushStep(tr("Rename %1").arg(toQt(old)), std::move(edits));
    return true;
}

OpenDatabase::Changed OpenDatabase::changedCopy(const data::ChartDatabase& charts, const Work& work)
{
    Changed changed{{charts, {}}, {}, Outcome::Cancelled};
    changed.outcome = work(changed.content.charts);
    if (changed.outcome == Outcome::Done) {
        changed.edits = differences(charts, changed.content.charts);
        if (changed.edits.size() > kFewLines || changed.content.charts.order() != charts.order()) {
            changed.content.list = data::listCharts(changed.content.charts);
        }
    }
    return changed;
}

Outcome OpenDatabase::change(const QString& text, const Work& work)
{
    Changed changed = changedCopy(charts_, work);
    const Outcome outcome = changed.outcome;
    adoptChange(text, std::move(changed));
    return outcome;
}

void OpenDatabase::adoptChange(const QString& text, Changed changed)
{
    if (changed.outcome != Outcome::Done) {
        return;
    }
    const bool sameOrder = changed.content.charts.order() == charts_.order();
    charts_ = std::move(changed.content.charts);
    if (changed.edits.size() > kFewLines || !sameOrder) {
        list_ = std::move(changed.content.list);
        emit reset();
    } else {
        for (const LineEdit& edit : changed.edits) {
            applyToList(edit);
        }
    }
    emit linesEdited(changed.edits);
    if (!changed.edits.empty()) {
        pushStep(text, std::move(changed.edits));
    }
}

void OpenDatabase::beginSave(const std::filesystem::path& path, Saved then)
{
    waitForSave();
    savesChanges_ = !undo_.isClean();
    // Shared, because the work may outlive the window.
    const auto bytes = std::make_shared<const std::vector<std::uint8_t>>(charts_.bytes());
    saving_->start(
        [path, bytes](const WorkHandle&) -> core::Result<data::FileStamp> {
            const core::Result<void> written = core::writeFileSafely(path, *bytes);
            return written ? core::Result(data::stampOf(path)) : written.error();
        },
        [this, path, then = std::move(then)](const core::Result<data::FileStamp>& saved) {
            finishSave(path, saved);
            then(saved ? core::Result<void>() : saved.error());
        },
        IfGivenUp::DoAnyway);
    // Steps from here on are not saved.
    undo_.setClean();
}

void OpenDatabase::finishSave(const std::filesystem::path& path,
                              const core::Result<data::FileStamp>& saved)
{
    if (saved) {
        charts_.setSaved(path, saved.value(), !undo_.isClean());
        watch();
    } else if (savesChanges_) {
        undo_.resetClean();
    }
    emit modifiedChanged();
}

bool OpenDatabase::saving() const
{
    return saving_->running();
}

void OpenDatabase::waitForSave()
{
    if (saving()) {
        QEventLoop loop;
        connect(saving_, &BackgroundWork::finished, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
    }
}

void OpenDatabase::pushStep(const QString& text, std::vector<LineEdit> edits)
{
    undo_.push(new Step(text, *this, std::move(edits)));
}

void OpenDatabase::apply(const std::vector<LineEdit>& edits)
{
    const bool few = edits.size() <= kFewLines;
    for (const LineEdit& edit : edits) {
        applyToLines(edit);
        if (few) {
            applyToList(edit);
        }
    }
    if (!few) {
        relist();
        emit reset();
    }
    emit linesEdited(edits);
}

void OpenDatabase::applyToLines(const LineEdit& edit)
{
    if (edit.before && edit.after) {
        charts_.replaceLine(edit.line, *edit.after);
    } else if (edit.after) {
        charts_.insertLine(edit.line, *edit.after);
    } else {
        charts_.remove(edit.line);
    }
}

void OpenDatabase::applyToList(const LineEdit& edit)
{
    const auto firstRow = [this](std::size_t line) {
        return std::lower_bound(
            list_.rows.begin(), list_.rows.end(), line,
            [](const data::ChooserRow& one, std::size_t at) { return one.line < at; });
    };
    const auto isLine = [&](auto row) {
        return row != list_.rows.end() && row->line == edit.line;
    };
    std::vector<std::size_t>& damaged = list_.tooShort;
    if (edit.before) {
        if (const auto row = firstRow(edit.line); isLine(row)) {
            list_.rows.erase(row);
        }
        std::erase(damaged, edit.line);
    }
    // Lines that come or go move those after them.
    if (edit.before.has_value() != edit.after.has_value()) {
        const auto move = [&](std::size_t line) {
            return edit.after ? line + 1 : line - 1;
        };
        for (auto row = firstRow(edit.line); row != list_.rows.end(); ++row) {
            row->line = move(row->line);
        }
        for (std::size_t& line : damaged) {
            line = line >= edit.line ? move(line) : line;
        }
    }
    if (edit.after) {
        if (data::isShortLine(*edit.after)) {
            damaged.insert(std::lower_bound(damaged.begin(), damaged.end(), edit.line), edit.line);
        } else {
            data::DateOrder order = charts_.order();
            data::ChooserRow row = data::chooserRow(*edit.after, order);
            row.line = edit.line;
            list_.rows.insert(firstRow(edit.line), std::move(row));
            charts_.setOrder(order);
        }
    }
    if (edit.before && edit.after) {
        emit lineChanged(edit.line);
    } else if (edit.after) {
        emit lineInserted(edit.line);
    } else {
        emit lineRemoved(edit.line);
    }
}

void OpenDatabase::relist()
{
    list_ = data::listCharts(charts_);
}

void OpenDatabase::watch()
{
    toldChange_ = false;
    if (!watcher_->files().isEmpty()) {
        watcher_->removePaths(watcher_->files());
    }
    const QString file = toQt(path());
    if (!file.isEmpty()) {
        watcher_->addPath(file);
    }
}

void OpenDatabase::lookAtFile()
{
    if (saving()) {
        lookTimer_->start();
        return;
    }
    // A file that was replaced is not watched any more.
    const QString file = toQt(path());
    if (!file.isEmpty() && !watcher_->files().contains(file)) {
        watcher_->addPath(file);
    }
    if (charts_.changedOnDisk() && !std::exchange(toldChange_, true)) {
        emit changedByOthers();
    }
}

} // namespace kestrav::desktop

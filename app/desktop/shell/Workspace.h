// What the whole window shares: program data, settings, open database, charts, shared date.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "astro/DataFile.h"
#include "core/SettingsFile.h"
#include "yoga/YogaLibrary.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>

namespace kestrav::desktop
{

class OpenDatabase;

// Shared, because panels hand what they show to workers that may outlive the chart on the screen.
using ChartPointer = std::shared_ptr<const present::ComputedChart>;
using DataPointer = std::shared_ptr<const astro::ProgramData>;
using YogasPointer = std::shared_ptr<const yoga::YogaLibrary>;

/// Longitudes that the user gave points instead of the computed ones, by point index, in sidereal
/// degrees. They belong to the shown chart, are marked wherever it is drawn, and are never saved.
using ChangedPoints = std::map<int, double>;

class Workspace : public QObject
{
    Q_OBJECT

public:
    /// Settings are written to the path after every change.
    Workspace(DataPointer data, core::StoredSettings settings, std::filesystem::path settingsPath,
              QObject* parent = nullptr);
    ~Workspace() override;

    [[nodiscard]] const DataPointer& data() const
    {
        return data_;
    }

    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_.settings;
    }
    /// Puts settings in force, keeps them in the settings file and computes what is shown anew. A
    /// file that cannot be written is told in the news bar; the settings stay in force.
    void changeSettings(const core::Settings& settings);
    [[nodiscard]] bool english() const;

    [[nodiscard]] OpenDatabase& database()
    {
        return *database_;
    }

    /// The shown chart; null when there is none.
    [[nodiscard]] const ChartPointer& chart() const
    {
        return chart_;
    }
    /// The second chart of comparisons; null when none was chosen.
    [[nodiscard]] const ChartPointer& secondChart() const
    {
        return second_;
    }
    /// The sky of the shared moment at the Now location, or at the place of the chart while there
    /// is none. It is computed when it is first asked for. Null where no chart can be computed.
    [[nodiscard]] const ChartPointer& momentChart();

    /// Computes and shows a record. `line` is its line in the database, nothing for a chart that is
    /// not in it. False with the news told when its birth data cannot be computed.
    bool showRecord(const core::Chart& record, std::optional<std::size_t> line = std::nullopt);
    /// The same for a line of the open database.
    bool showLine(std::size_t line);
    bool showSecond(const core::Chart& record);
    void closeSecond();
    void closeChart();
    /// The line of the shown chart in the database.
    [[nodiscard]] std::optional<std::size_t> chartLine() const
    {
        return line_;
    }
    void setChartLine(std::optional<std::size_t> line);
    /// The record whose birth data make the shown chart, as it was given.
    [[nodiscard]] const core::Chart& record() const
    {
        return record_;
    }

    /// The present moment at the Now location, as a record that is not in the database.
    [[nodiscard]] core::Chart nowRecord() const;
    /// A record of the moment (Julian day of Universal Time) at that place.
    [[nodiscard]] core::Chart recordAt(double moment) const;

    [[nodiscard]] const ChangedPoints& changedPoints() const
    {
        return changed_;
    }
    /// Gives a point a longitude of the user's, or its own again with nothing. The house system
    /// becomes Equal House where the change makes the others impossible, which the caller has told.
    void changePoint(int point, std::optional<double> longitude);

    /// The shared moment: Julian day of Universal Time.
    [[nodiscard]] double moment() const
    {
        return moment_;
    }
    void setMoment(double moment);
    /// The system clock, or what stands for it in tests, as a Julian day.
    [[nodiscard]] static double now();

    /// What is selected, for the inspector.
    [[nodiscard]] const present::Link& selection() const
    {
        return selection_;
    }
    void select(const present::Link& link);

    /// The loaded yoga files; never null.
    [[nodiscard]] const YogasPointer& yogas() const
    {
        return yogas_;
    }
    void setYogas(YogasPointer yogas);

    /// News that need no answer: shown in the bar above the pages.
    void tell(const QString& text);
    void tellProblem(const QString& text);

signals:
    void chartChanged();
    void secondChanged();
    void momentChanged();
    void selectionChanged();
    /// After the settings changed, and before what depends on them is computed anew.
    void settingsChanged(const core::Settings& before);
    void yogasChanged();
    void news(const QString& text, bool problem);
    /// Somebody asks to see a page, by its name, or the help topic of a panel or form.
    void pageWanted(const QString& name);
    void helpWanted(const QString& panelOrForm);
    /// Somebody asks to see a setting in the options, by its name.
    void settingWanted(const QString& name);

private:
    ChartPointer compute(const core::Chart& record, bool withChanges);
    bool computable(const core::Chart& record);
    void recompute();

    DataPointer data_;
    core::StoredSettings settings_;
    std::filesystem::path settingsPath_;
    std::unique_ptr<OpenDatabase> database_;
    core::Chart record_;
    core::Chart secondRecord_;
    std::optional<std::size_t> line_;
    ChartPointer chart_;
    ChartPointer second_;
    ChartPointer momentChart_;
    ChangedPoints changed_;
    double moment_ = 0.0;
    present::Link selection_{present::Subject::Point, core::kAscendant};
    YogasPointer yogas_;
};

/// The chart that a panel shows.
enum class ChartSource
{
    Shown,
    Second,
    Moment,
};

/// Julian day of the Universal Time of a moment in seconds since 1970, and back.
[[nodiscard]] double julianDayOfUnix(double seconds);
[[nodiscard]] double unixOfJulianDay(double julianDay);

} // namespace kestrav::desktop

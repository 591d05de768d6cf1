// Computed charts, with what the models of the window read beside them.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/TableCatalogue.h"
#include "core/FileText.h"
#include "tests/astro/SeriesForTests.h"

#include <string>

namespace kestrav::present
{

/// New Delhi, 1990 June 15, 14:32:10, with two events.
inline ComputedChart delhiChart(const core::Settings& settings = {})
{
    ComputedChart computed;
    computed.settings = settings;
    computed.hasPlace = true;
    core::Chart& chart = computed.chart;
    chart.name = L"Delhi";
    chart.time.year = 1990;
    chart.time.month = 6;
    chart.time.day = 15;
    chart.time.localTime = 14.0 + 32.0 / 60.0 + 10.0 / 3600.0;
    chart.zone = 5.5;
    chart.geoLongitude = 77.2;
    chart.geoLatitude = 28.6;
    chart.identity.events[0] = {L"First school", {1996, 7, 1}, 9.0};
    chart.identity.events[5] = {L"Wedding", {2015, 11, 23}, 18.5};
    astro::EphemerisContext context(tests::seriesForTests());
    computeFromBirthData(computed, context);
    return computed;
}

/// What tables of the chart are made from.
inline TableSource sourceOf(const ComputedChart& computed)
{
    TableSource source{computed, tests::seriesForTests()};
    source.moment = 2457350.0; // 2015 November 23, noon of Greenwich
    return source;
}

/// The texts of a column, each on its line.
inline std::string columnOf(const Table& table, std::size_t column)
{
    std::string text;
    for (const Row& row : table.rows) {
        text += core::toUtf8(row[column].text) + "\n";
    }
    return text;
}

/// The row that begins with a text, or null.
inline const Row* rowOf(const Table& table, std::wstring_view label)
{
    for (const Row& row : table.rows) {
        if (row.front().text == label) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace kestrav::present

#include "app/cli/Explanations.h"

#include "app/present/TextTable.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace kestrav::cli
{

namespace
{

constexpr std::string_view kTopicList = "list";

Json textsJson(const std::vector<std::wstring>& texts)
{
    Json list = Json::array();
    for (const std::wstring& text : texts) {
        list.push_back(textJson(text));
    }
    return list;
}

std::wstring itemsText(std::wstring_view heading, const std::vector<std::wstring>& items)
{
    std::wstring text;
    for (const std::wstring& item : items) {
        text +=
            (text.empty() ? std::wstring(heading) + L"\n" : L"") + present::wrapped(item, L"  - ");
    }
    return text;
}

} // namespace

bool asksForTopics(const Arguments& arguments)
{
    const std::vector<std::string>& queries = arguments.values("--explain");
    return std::find(queries.begin(), queries.end(), kTopicList) != queries.end();
}

std::wstring topicsText()
{
    present::TextTable table(
        {{L"Query"}, {L"Example"}, {L"What it explains", present::TextTable::Align::Wrapped}});
    for (const analysis::ExplainTopic& topic : analysis::explainTopics()) {
        table.add({core::fromFileBytes(topic.form), core::fromFileBytes(topic.example),
                   core::fromFileBytes(topic.meaning)});
    }
    return table.text();
}

Json topicsJson(std::string_view command)
{
    Json object = commandObject(command);
    object["topics"] = Json::array();
    for (const analysis::ExplainTopic& topic : analysis::explainTopics()) {
        Json entry;
        entry["form"] = std::string(topic.form);
        entry["meaning"] = std::string(topic.meaning);
        entry["example"] = std::string(topic.example);
        object["topics"].push_back(std::move(entry));
    }
    return object;
}

core::Result<std::vector<analysis::Explanation>> explanationsOf(const Arguments& arguments,
                                                                const ComputedChart& computed)
{
    std::vector<analysis::Explanation> explanations;
    for (const std::string& query : arguments.values("--explain")) {
        core::Result<analysis::Explanation> explanation =
            analysis::explain(computed.chart, computed.settings, query);
        if (!explanation) {
            // The message begins with "explain 'QUERY'".
            return core::Error{"--" + explanation.error().text()};
        }
        explanations.push_back(std::move(explanation.value()));
    }
    return explanations;
}

std::wstring explanationsText(const std::vector<analysis::Explanation>& explanations)
{
    std::wstring text;
    for (const analysis::Explanation& explanation : explanations) {
        text += L"\n" + present::wrapped(explanation.subject + L": " + explanation.result, L"");
        text += itemsText(L"How it comes about", explanation.steps);
        text += itemsText(L"Settings", explanation.settings);
    }
    return text;
}

Json explanationsJson(const std::vector<analysis::Explanation>& explanations)
{
    Json list = Json::array();
    for (const analysis::Explanation& explanation : explanations) {
        Json object;
        object["subject"] = textJson(explanation.subject);
        object["result"] = textJson(explanation.result);
        object["steps"] = textsJson(explanation.steps);
        object["settings"] = textsJson(explanation.settings);
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace kestrav::cli

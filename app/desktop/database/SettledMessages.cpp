#include "app/desktop/database/SettledMessages.h"

#include "data/DatabaseMessages.h"

namespace kestrav::desktop
{

namespace
{

using core::Answer;
using core::Buttons;

Answer agreement(Buttons buttons)
{
    return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
}

} // namespace

Answer SettledMessages::show(const std::wstring& caption, const std::wstring& text, Buttons buttons)
{
    const bool group = text == data::kChangeGroupA || text == data::kChangeGroupB;
    const bool settled = (text == data::kSaveAsNow && !settings_.confirmNowRecord) ||
                         (text == data::kShortYear && !settings_.confirmShortYear) ||
                         (text == data::kRefreshResearch && !settings_.confirmRefresh) ||
                         (group && !settings_.confirmGroups);
    return settled ? agreement(buttons) : asked_.show(caption, text, buttons);
}

Answer NotedMessages::show(const std::wstring& caption, const std::wstring& text, Buttons buttons)
{
    said_.push_back({caption, text, buttons});
    return agreement(buttons);
}

bool repeat(const std::vector<NotedMessages::Said>& said, core::Messages& messages)
{
    for (const NotedMessages::Said& one : said) {
        if (messages.show(one.caption, one.text, one.buttons) == Answer::Cancel) {
            return false;
        }
    }
    return true;
}

} // namespace kestrav::desktop

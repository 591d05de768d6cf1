// Any bytes must be read as a list of places and of countries, and the search must take any text.
#include "core/FileText.h"
#include "data/Places.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;

    const std::string text(data, data + size);
    core::Result<data::ZoneTable> zones =
        data::ZoneTable::parse("Z Asia/Kolkata\n* 5:30\nR IST-5:30\n");
    data::PlaceList list;
    (void)list.addText(text, zones.value(), false);
    (void)list.addText("Delhi\tDilli\t07\tDelhi\tIN\t28.65\t77.23\tAsia/Kolkata\t10927986\n" + text,
                       zones.value(), true);
    list.buildKeys();
    const data::Places places(data::CountryList::parse(text), std::move(zones.value()),
                              std::move(list));
    const std::wstring typed = core::fromFileBytes(text.substr(0, 100));
    for (const std::uint32_t number : places.find(typed).places) {
        (void)places.regionAndCountryOf(places.place(number));
    }
    (void)places.find(L"delhi", typed);
    return 0;
}

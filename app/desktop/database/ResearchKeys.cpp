#include "app/desktop/database/ResearchKeys.h"

#include "app/desktop/shell/Convert.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "data/ResearchLine.h"

#include <QCoreApplication>

namespace kestrav::desktop
{

namespace
{

std::vector<data::ResearchKey> makeKeys()
{
    using Kind = data::ResearchKey::Kind;
    std::vector<data::ResearchKey> keys = {{Kind::TropicalSun, core::kSun}};
    for (const Kind kind : {Kind::Sign, Kind::Nakshatra}) {
        // The lights and the ascendant are what is looked for most.
        for (const int point : {core::kSun, core::kMoon, core::kAscendant}) {
            keys.push_back({kind, point});
        }
        for (const int point : data::kResearchPoints) {
            if (point != core::kSun && point != core::kMoon && point != core::kAscendant) {
                keys.push_back({kind, point});
            }
        }
    }
    return keys;
}

QString nameOf(int point)
{
    constexpr int kWholeName = 5;
    return toQt(core::PointName(kWholeName, point)).trimmed();
}

} // namespace

const std::vector<data::ResearchKey>& researchKeys()
{
    static const std::vector<data::ResearchKey> kKeys = makeKeys();
    return kKeys;
}

QString researchKeyText(const data::ResearchKey& key)
{
    const auto text = [](const char* words) {
        return QCoreApplication::translate("ResearchKeys", words);
    };
    switch (key.kind) {
    case data::ResearchKey::Kind::TropicalSun:
        return text("Tropical sign of Sun");
    case data::ResearchKey::Kind::Sign:
        return text("Sign of %1").arg(nameOf(key.point));
    case data::ResearchKey::Kind::Nakshatra:
        break;
    }
    return text("Nakshatra of %1").arg(nameOf(key.point));
}

} // namespace kestrav::desktop

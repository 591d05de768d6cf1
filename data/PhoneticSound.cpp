#include "data/PhoneticSound.h"

namespace kestrav::data
{

namespace
{

constexpr std::wstring_view kSounds = L"aiueokhghchjhThDhthdhnphbhmyrlvsSzH";
constexpr std::size_t kGroups = 5;

} // namespace

int soundGroup(std::wstring_view sound)
{
    if (sound.starts_with(L'h') || sound.starts_with(L'H')) {
        return kGroups;
    }
    const std::size_t place = sound.empty() ? std::wstring_view::npos : kSounds.find(sound);
    if (place == std::wstring_view::npos) {
        return 1;
    }
    // Twice the position is meant: groups kept elsewhere depend on it.
    const std::size_t group = (2 * place + sound.size()) % kGroups;
    return int(group == 0 ? kGroups : group);
}

} // namespace kestrav::data

#include "yoga/conditions/Evaluation.h"

#include "analysis/ExplainText.h"

namespace kestrav::yoga
{

namespace
{

namespace explaining = analysis::explaining;

constexpr std::size_t kMostFacts = 9; // of one explanation

bool passes(const SetWord& word, int hits, int tested, bool missing)
{
    switch (word.quantifier) {
    case Quantifier::None:
    case Quantifier::Any:
        return hits > 0;
    case Quantifier::All:
        return hits == tested && tested > 0 && !missing;
    case Quantifier::No:
        return hits == 0 && !missing;
    case Quantifier::AtLeast:
        return hits >= word.count;
    case Quantifier::AtMost:
        return hits <= word.count && !missing;
    case Quantifier::Exactly:
        return hits == word.count && !missing;
    }
    return false;
}

// Whether more members cannot change the result.
bool settled(const SetWord& word, bool truth)
{
    return ((word.quantifier == Quantifier::None || word.quantifier == Quantifier::Any) && truth) ||
           (word.quantifier == Quantifier::All && !truth) ||
           (word.quantifier == Quantifier::No && truth);
}

} // namespace

Evaluation::Evaluation(const Arguments& arguments, Subject& subject, bool explaining)
    : arguments_(arguments), subject_(subject),
      native_(arguments.exchanged ? subject.second() : subject.native()),
      second_(arguments.exchanged ? subject.native() : subject.second()), explaining_(explaining)
{}

Place Evaluation::place(std::size_t index)
{
    const int code = value(index) < 0 ? pointCode(core::kAscendant) : value(index);
    Place place = placeOf(code, native_, second_, varga(index));
    if (place.point >= 0 && place.sign(varga(index)) == 0) {
        place.point = -1;
    }
    if (place.point < 0) {
        fact(false, [&] { return pointWords(code) + L" has no position"; });
    }
    return place;
}

Places Evaluation::places(std::size_t index)
{
    Places places;
    const int code = value(index);
    if (wordClass(code) == WordClass::Point) {
        places.items[0] = place(index);
        places.missing = places.items[0].point < 0;
        places.count = places.missing ? 0 : 1;
        return places;
    }
    const SetWord word = setWord(code);
    Frame& frame = word.secondChart ? second_ : native_;
    const std::uint32_t mask = frame.members(word, varga(index));
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        if (((mask >> unsigned(planet)) & 1U) == 0) {
            continue;
        }
        if (frame.sign(planet, varga(index)) == 0) {
            places.missing = true;
        } else {
            core::at(places.items, places.count++) = Place{&frame, planet, 0};
        }
    }
    if (places.missing) {
        places.count = 0;
        fact(false, [&] { return L"one of " + setWords(word) + L" has no position"; });
    }
    return places;
}

bool Evaluation::overSet(const SetWord& word, std::size_t index, const Place* itself, Test test)
{
    Frame& frame = word.secondChart ? second_ : native_;
    const std::uint32_t mask = frame.members(word, varga(index));
    const std::size_t begin = facts_.size();
    int hits = 0;
    int tested = 0;
    bool missing = !frame.exists();
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        if (((mask >> unsigned(planet)) & 1U) == 0) {
            continue;
        }
        const Place member{&frame, planet, 0};
        if (itself != nullptr && member == *itself) {
            continue;
        }
        if (frame.sign(planet, varga(index)) == 0) {
            missing = true;
            continue;
        }
        const bool truth = test(member);
        hits += truth ? 1 : 0;
        ++tested;
        if (!explaining_ && settled(word, truth)) {
            break;
        }
    }
    const bool truth = passes(word, hits, tested, missing);
    if (explaining_) {
        if (tested == 0) {
            store(truth, (missing ? L"there is no position for " : L"there are none of ") +
                             setWords(word));
        } else {
            if (missing && !truth) {
                store(false, L"one of " + setWords(word) + L" has no position");
            }
            summarise(begin, truth, word, hits);
        }
    }
    return truth;
}

// Makes one fact of those of the members: what decided, and the count where one is asked for.
void Evaluation::summarise(std::size_t begin, bool truth, const SetWord& word, int hits)
{
    const bool any = word.quantifier == Quantifier::None || word.quantifier == Quantifier::Any;
    const bool onlyHits = (any && truth) || (word.quantifier == Quantifier::No && !truth);
    const bool onlyMisses = word.quantifier == Quantifier::All && !truth;
    std::wstring text;
    std::size_t told = 0;
    std::size_t left = 0;
    for (std::size_t i = begin; i < facts_.size(); ++i) {
        if ((onlyHits && !facts_[i].truth) || (onlyMisses && facts_[i].truth)) {
            continue;
        }
        if (told == kMostFacts) {
            ++left;
            continue;
        }
        text += told++ == 0 ? L"" : L"; ";
        text += facts_[i].text;
    }
    if (left > 0) {
        text += L"; and " + std::to_wstring(left) + L" more";
    }
    if (word.quantifier == Quantifier::No && !truth) {
        text += L", but none may be";
    } else if (word.count > 0) {
        text += L": " + std::to_wstring(hits) + L", asked for " +
                explaining::text(quantifierWords(word), L"them");
    }
    facts_.resize(begin);
    store(truth, std::move(text));
}

bool Evaluation::eachOther(std::size_t index, const Place* itself, Test test)
{
    const int code = value(index);
    if (wordClass(code) == WordClass::Set) {
        return overSet(setWord(code), index, itself, test);
    }
    const Place found = place(index);
    if (found.point < 0) {
        return false;
    }
    if (itself != nullptr && found == *itself) {
        return fact(false, [&] { return name(found, index) + L" is the same point"; });
    }
    return test(found);
}

bool Evaluation::each(std::size_t index, Test test)
{
    return eachOther(index, nullptr, test);
}

bool Evaluation::pairs(std::size_t first, std::size_t second, PairTest test, bool withItself)
{
    const bool skip = !withItself && varga(first) == varga(second);
    return each(first, [&](const Place& one) {
        return eachOther(second, skip ? &one : nullptr,
                         [&](const Place& other) { return test(one, other); });
    });
}

std::wstring Evaluation::name(const Place& place, std::size_t index) const
{
    const int code = value(index) < 0 ? pointCode(core::kAscendant) : value(index);
    if (wordClass(code) == WordClass::Point) {
        const bool plain = pointBase(code) < core::kPointCount && pointStep(code, 0) == kNoStep;
        std::wstring words = pointWords(code);
        if (plain || place.planet() == 0) {
            return words;
        }
        return words + L" (" + explaining::nameOf(place.planet()) + L")";
    }
    const std::wstring planet = explaining::nameOf(place.point);
    return place.frame == &second_ ? planet + L" of the second chart" : planet;
}

std::wstring Evaluation::reason() const
{
    std::wstring text;
    for (const Fact& fact : facts_) {
        text += text.empty() ? L"" : L"; ";
        text += fact.text;
    }
    return text;
}

} // namespace kestrav::yoga

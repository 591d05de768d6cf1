// One test of a condition: its arguments, the charts, and the words of the explanation when they
// are wanted.
#pragma once

#include "timing/FunctionRef.h"
#include "yoga/Keywords.h"
#include "yoga/Subject.h"
#include "yoga/conditions/Arguments.h"
#include "yoga/conditions/Place.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace kestrav::yoga
{

/// The planets or points of a word, at most nine. Empty, with `missing`, when one has no position.
struct Places
{
    std::array<Place, 9> items = {};
    int count = 0;
    bool missing = false;

    [[nodiscard]] const Place* begin() const
    {
        return items.data();
    }
    [[nodiscard]] const Place* end() const
    {
        return items.data() + count;
    }
};

class Evaluation
{
public:
    Evaluation(const Arguments& arguments, Subject& subject, bool explaining);

    /// The value of parameter `index`; -1 when it was left out.
    [[nodiscard]] int value(std::size_t index) const
    {
        return arguments_.values[index];
    }
    /// The plain word of a parameter, or another one when it was left out.
    [[nodiscard]] PlainWord word(std::size_t index, PlainWord fallback) const
    {
        return value(index) < 0 ? fallback : PlainWord(value(index));
    }
    /// The values of the repeated parameter.
    [[nodiscard]] std::uint64_t list() const
    {
        return arguments_.list;
    }
    /// Whether the list has a number from 1 on, or a plain word.
    [[nodiscard]] bool listed(int number) const
    {
        return number >= 0 && ((arguments_.list >> unsigned(number)) & 1U) != 0;
    }
    /// The divisional chart of the first point, and that of the others.
    [[nodiscard]] int varga(std::size_t index = 0) const
    {
        return arguments_.vargas[index == 0 ? 0 : 1];
    }
    [[nodiscard]] Frame& frame() const
    {
        return native_;
    }
    [[nodiscard]] Subject& subject() const
    {
        return subject_;
    }
    [[nodiscard]] const core::Settings& settings() const
    {
        return subject_.settings();
    }

    /// The point of a parameter; the ascendant when it was left out. Its `point` is -1 when it
    /// leads nowhere or has no position, which then is a fact.
    [[nodiscard]] Place place(std::size_t index);

    /// The planets of a set parameter, or its one point.
    [[nodiscard]] Places places(std::size_t index);

    using Test = timing::FunctionRef<bool(const Place&)>;
    using PairTest = timing::FunctionRef<bool(const Place&, const Place&)>;

    /// Tests the points of a subject parameter and counts as its quantifier says.
    bool each(std::size_t index, Test test);

    /// Tests the points of two subject parameters against each other. A point is not tested against
    /// itself in the same divisional chart, unless `withItself`.
    bool pairs(std::size_t first, std::size_t second, PairTest test, bool withItself = false);

    /// Says what was found, and when it does not hold what was wanted; gives the truth back. The
    /// texts are made only when someone reads them.
    template <typename Found, typename Wanted>
    bool fact(bool truth, Found found, Wanted wanted)
    {
        if (explaining_) {
            store(truth, truth ? std::wstring(found())
                               : std::wstring(found()) + L", not " + std::wstring(wanted()));
        }
        return truth;
    }
    /// Says what was found.
    template <typename Found>
    bool fact(bool truth, Found found)
    {
        if (explaining_) {
            store(truth, std::wstring(found()));
        }
        return truth;
    }

    /// A place in a sentence: the words of the parameter with the planet that they lead to.
    [[nodiscard]] std::wstring name(const Place& place, std::size_t index) const;

    /// The facts as one text.
    [[nodiscard]] std::wstring reason() const;

private:
    struct Fact
    {
        bool truth;
        std::wstring text;
    };

    void store(bool truth, std::wstring text)
    {
        facts_.push_back({truth, std::move(text)});
    }
    bool eachOther(std::size_t index, const Place* itself, Test test);
    bool overSet(const SetWord& word, std::size_t index, const Place* itself, Test test);
    void summarise(std::size_t begin, bool truth, const SetWord& word, int hits);

    const Arguments& arguments_;
    Subject& subject_;
    Frame& native_;
    Frame& second_;
    bool explaining_;
    std::vector<Fact> facts_;
};

/// The test of a kind.
using ConditionFunction = bool (*)(Evaluation&);

} // namespace kestrav::yoga

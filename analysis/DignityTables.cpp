#include "analysis/DignityTables.h"

#include "core/Points.h"

#include <array>
#include <cassert>

namespace kestrav::analysis
{

namespace
{

using core::at;

// Index 1 to 12; entry 0 is unused.
using SignRow = std::array<int, 13>;

// clang-format off
constexpr SignRow kSignLords     = {0, 3, 6, 4, 2, 1, 4, 6, 3, 5, 7, 7, 5};
constexpr SignRow kNodeSignLords = {0, 3, 6, 8, 2, 1, 8, 6, 3, 9, 7, 8, 9};

struct Signs
{
    int exaltation;
    int debilitation;
};

// Points 0 to 14; the nodes have their own table.
constexpr std::array<Signs, 15> kSigns = {{
    { 0,  0},
    { 1,  7}, // Sun
    { 2,  8}, // Moon
    {10,  4}, // Mars
    { 6, 12}, // Mercury
    { 4, 10}, // Jupiter
    {12,  6}, // Venus
    { 7,  1}, // Saturn
    { 0,  0},
    { 0,  0},
    { 5, 11}, // Dhuma
    { 8,  2}, // Vyatipata
    { 3,  9}, // Parivesha
    { 9,  3}, // Indrachapa
    {11,  5}, // Upaketu
}};

struct NodeSigns
{
    int exaltation;
    int debilitation;
    int moolatrikona;
};

// Rahu and Ketu by scheme. Scheme 1 exalts both in Scorpio on purpose.
constexpr std::array<std::array<NodeSigns, 2>, 3> kNodeSigns = {{
    {{{2, 8,  3}, {8, 2, 9}}},
    {{{8, 2,  0}, {8, 2, 0}}},
    {{{3, 9, 11}, {9, 3, 8}}},
}};

// Index 1 to 7; entry 0 is unused.
constexpr std::array<int, 8>    kMoolatrikona      = {0,  5,  2,   1,   6,  9,   7,  11};
constexpr std::array<double, 8> kMoolatrikonaLimit = {0, 20, 30,  12,  20, 10,  15,  20};
constexpr std::array<double, 8> kDeepExaltation    = {0, 10, 33, 298, 165, 95, 357, 200};

// Row towards column, planets 1 to 7; the diagonal is never asked.
constexpr std::array<std::array<int, 8>, 8> kNatural = {{
    {{0,  0,  0,  0,  0,  0,  0,  0}},
    {{0,  1,  1,  1,  0,  1, -1, -1}}, // Sun
    {{0,  1,  1,  0,  1,  0,  0,  0}}, // Moon
    {{0,  1,  1,  1, -1,  1,  0,  0}}, // Mars
    {{0,  1, -1,  0,  1,  0,  1,  0}}, // Mercury
    {{0,  1,  1,  1, -1,  1, -1,  0}}, // Jupiter
    {{0, -1, -1,  0,  1,  0,  1,  1}}, // Venus
    {{0, -1, -1, -1,  1,  0,  1,  1}}, // Saturn
}};

// By sign 1 to 12. Schemes 1 and 2 change single signs of scheme 0.
constexpr SignRow kRahuRelationship = {0, -1,  4, 3, -1, -1, 3, 1, -3, -1, 1, 3, 0};
constexpr SignRow kKetuRelationship = {0,  0, -3, 0, -1, -1, 0, 1,  4,  3, 1, 1, 3};
// clang-format on

bool isNode(int point)
{
    return point == core::kRahu || point == core::kKetu;
}

const NodeSigns& nodeSigns(int node, int scheme)
{
    return at(at(kNodeSigns, scheme), node - core::kRahu);
}

int schemeOneRelationship(int node, int sign)
{
    if (sign == 2) {
        return -3;
    }
    return sign == 8 ? 4 : nodeRelationship(node, sign, 0);
}

int schemeTwoRelationship(int node, int sign)
{
    const bool rahu = node == core::kRahu;
    switch (sign) {
    case 2:
        return 1;
    case 3:
        return rahu ? 4 : -3;
    case 8:
        // The 3 makes Ketu's moolatrikona in Scorpio reachable.
        return rahu ? -1 : 3;
    case 9:
        return rahu ? -3 : 4;
    default:
        return nodeRelationship(node, sign, 0);
    }
}

} // namespace

int signLord(int sign)
{
    return at(kSignLords, sign);
}

int nodeSignLord(int sign)
{
    return at(kNodeSignLords, sign);
}

int exaltationSign(int point, int nodeScheme)
{
    if (isNode(point)) {
        return nodeSigns(point, nodeScheme).exaltation;
    }
    return point >= 0 && point < int(kSigns.size()) ? at(kSigns, point).exaltation : 0;
}

int debilitationSign(int point, int nodeScheme)
{
    if (isNode(point)) {
        return nodeSigns(point, nodeScheme).debilitation;
    }
    return point >= 0 && point < int(kSigns.size()) ? at(kSigns, point).debilitation : 0;
}

int moolatrikonaSign(int point, int nodeScheme)
{
    if (isNode(point)) {
        return nodeSigns(point, nodeScheme).moolatrikona;
    }
    return point >= core::kSun && point <= core::kSaturn ? at(kMoolatrikona, point) : 0;
}

double moolatrikonaLimit(int planet)
{
    return at(kMoolatrikonaLimit, planet);
}

double exaltationLimit(int planet)
{
    if (planet == core::kMoon) {
        return 3.0;
    }
    return planet == core::kMercury ? 15.0 : 30.0;
}

double deepExaltation(int planet)
{
    return at(kDeepExaltation, planet);
}

int naturalRelationship(int planet, int other)
{
    return at(at(kNatural, planet), other);
}

int nodeRelationship(int node, int sign, int nodeScheme)
{
    assert(isNode(node));
    switch (nodeScheme) {
    case 1:
        return schemeOneRelationship(node, sign);
    case 2:
        return schemeTwoRelationship(node, sign);
    default:
        return at(node == core::kRahu ? kRahuRelationship : kKetuRelationship, sign);
    }
}

} // namespace kestrav::analysis

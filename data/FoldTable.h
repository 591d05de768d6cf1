// Letters with marks as plain small letters, two characters a code point, blank for nothing.
// Printed by tools/place_text.py from the decompositions of Unicode 14.0.0.
#pragma once

#include <string_view>

namespace kestrav::data
{

// clang-format off
/// From U+00C0 on.
inline constexpr std::string_view kFoldFrom00C0 =
    "a a a a a a aec e e e e i i i i d n o o o o o   o u u u u y thss"
    "a a a a a a aec e e e e i i i i d n o o o o o   o u u u u y thy "
    "a a a a a a c c c c c c c c d d d d e e e e e e e e e e g g g g "
    "g g g g h h h h i i i i i i i i i i ijijj j k k k l l l l l l l "
    "l l l n n n n n n n n n o o o o o o oeoer r r r r r s s s s s s "
    "s s t t t t t t u u u u u u u u u u u u w w y y y z z z z z z s "
    "b b         o     d d       e e e f f   g     i k k             "
    "o o                           u u     y y z z                   "
    "        dzdzdzljljljnjnjnja a i i o o u u u u u u u u u u e a a "
    "a a aeae    g g k k o o o o     j dzdzdzg g     n n a a aeaeo o "
    "a a a a e e e e i i i i o o o o r r r r u u u u s s t t     h h "
    "            a a e e o o o o o o o o y y                         "
    "      b u                       ";
static_assert(kFoldFrom00C0.size() == 800);

/// From U+1E00 on.
inline constexpr std::string_view kFoldFrom1E00 =
    "a a b b b b b b c c d d d d d d d d d d e e e e e e e e e e f f "
    "g g h h h h h h h h h h i i i i k k k k k k l l l l l l l l m m "
    "m m m m n n n n n n n n o o o o o o o o p p p p r r r r r r r r "
    "s s s s s s s s s s t t t t t t t t u u u u u u u u u u v v v v "
    "w w w w w w w w w w x x x x y y z z z z z z h t w y a s     ss  "
    "a a a a a a a a a a a a a a a a a a a a a a a a e e e e e e e e "
    "e e e e e e e e i i i i o o o o o o o o o o o o o o o o o o o o "
    "o o o o u u u u u u u u u u u u u u y y y y y y y y             ";
static_assert(kFoldFrom1E00.size() == 512);

// clang-format on

} // namespace kestrav::data

#include "app/desktop/palette/PaletteMatch.h"

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

constexpr int kLetter = 10;
constexpr int kWordStart = 30;
constexpr int kFollows = 20;
constexpr int kWhole = 1000;
constexpr int kSpread = 1; // lost for each letter that is passed over
constexpr int kLongest = 40;

QString plain(const QString& text)
{
    QString kept;
    for (const QChar character : text.normalized(QString::NormalizationForm_D)) {
        if (character.category() != QChar::Mark_NonSpacing) {
            kept += character.toCaseFolded();
        }
    }
    return kept;
}

// The worth from a position on, always taking the first place that continues a word or begins one
// before any other.
int worthFrom(const QString& letters, const QString& entry, qsizetype start)
{
    int worth = 0;
    qsizetype last = start - 1;
    for (const QChar letter : letters) {
        const qsizetype at = entry.indexOf(letter, last + 1);
        if (at < 0) {
            return -1;
        }
        const bool wordStart = at == 0 || !entry[at - 1].isLetterOrNumber();
        worth += kLetter + (wordStart ? kWordStart : 0) + (at == last + 1 ? kFollows : 0);
        worth -= kSpread * int(std::min<qsizetype>(at - last - 1, kLongest));
        last = at;
    }
    return worth;
}

} // namespace

std::optional<int> paletteMatch(const QString& typed, const QString& entry)
{
    const QString letters = plain(typed).remove(QLatin1Char(' '));
    const QString text = plain(entry);
    if (letters.isEmpty()) {
        return 0;
    }
    int best = -1;
    for (qsizetype at = text.indexOf(letters[0]); at >= 0; at = text.indexOf(letters[0], at + 1)) {
        best = std::max(best, worthFrom(letters, text, at));
    }
    if (best < 0) {
        return std::nullopt;
    }
    const bool whole = QString(text).remove(QLatin1Char(' ')) == letters;
    return best + (whole ? kWhole : 0) - int(std::min<qsizetype>(text.size(), kLongest)) / 4;
}

} // namespace kestrav::desktop

#include "app/desktop/shell/Theme.h"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include <array>

namespace kestrav::desktop
{

namespace
{

enum class Scheme : int
{
    System,
    Light,
    Dark,
};

struct Pair
{
    QRgb light;
    QRgb dark;
};

// In the order of ThemeRole. Contrast against the window is tested.
constexpr std::array<Pair, 6> kColours = {{
    {0xFF1B6E3C, 0xFF7BD49A},
    {0xFFA3261E, 0xFFFF9B91},
    {0xFF1F5FA8, 0xFF8AB8F0},
    {0xFF5A5A5A, 0xFFB4B4B4},
    {0xFFE4EEF9, 0xFF24384F},
    {0xFFFBE4E1, 0xFF552522},
}};

struct PaletteRow
{
    QPalette::ColorRole role;
    Pair colour;
};

constexpr PaletteRow kPalette[] = {
    {QPalette::Window, {0xFFF3F2EF, 0xFF26282B}},
    {QPalette::WindowText, {0xFF1E1E1E, 0xFFE6E6E6}},
    {QPalette::Base, {0xFFFFFFFF, 0xFF1B1D1F}},
    {QPalette::AlternateBase, {0xFFF6F5F1, 0xFF222427}},
    {QPalette::Text, {0xFF1E1E1E, 0xFFE6E6E6}},
    {QPalette::Button, {0xFFECEAE6, 0xFF2C2F32}},
    {QPalette::ButtonText, {0xFF1E1E1E, 0xFFE6E6E6}},
    {QPalette::BrightText, {0xFFA3261E, 0xFFFF9B91}},
    {QPalette::ToolTipBase, {0xFFFFFBE8, 0xFF3A3D41}},
    {QPalette::ToolTipText, {0xFF1E1E1E, 0xFFE6E6E6}},
    {QPalette::Highlight, {0xFF2C6CB5, 0xFF3B6EA5}},
    {QPalette::HighlightedText, {0xFFFFFFFF, 0xFFFFFFFF}},
    {QPalette::Link, {0xFF1F5FA8, 0xFF8AB8F0}},
    {QPalette::LinkVisited, {0xFF6B4A9C, 0xFFBBA0E3}},
    {QPalette::PlaceholderText, {0xFF6A6A6A, 0xFFA0A0A0}},
    {QPalette::Light, {0xFFFFFFFF, 0xFF45494E}},
    {QPalette::Midlight, {0xFFF7F6F3, 0xFF3A3D41}},
    {QPalette::Mid, {0xFFBDBAB3, 0xFF505459}},
    {QPalette::Dark, {0xFF9C9890, 0xFF17191B}},
    {QPalette::Shadow, {0xFF6F6C66, 0xFF0E0F10}},
};

QPalette paletteOf(bool dark)
{
    QPalette palette;
    for (const PaletteRow& row : kPalette) {
        palette.setColor(row.role, QColor::fromRgb(dark ? row.colour.dark : row.colour.light));
    }
    const QColor faint = QColor::fromRgb(dark ? 0xFF7D7D7D : 0xFF8A8A8A);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

constexpr int kMiddle = 128;
constexpr char kStyleName[] = "kestrav-fusion";

// In dark windows the frames of empty check boxes and radio buttons would be darker than the
// window and not be seen.
class FramedStyle : public QProxyStyle
{
public:
    FramedStyle() : QProxyStyle(QStringLiteral("Fusion"))
    {
        setObjectName(QLatin1String(kStyleName));
    }

    // Buttons of the program have words alone; pictures on the standard ones among them would set
    // those apart.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool box = element == PE_IndicatorCheckBox;
        if (!isDark() || (!box && element != PE_IndicatorRadioButton)) {
            return;
        }
        const bool enabled = option->state.testFlag(State_Enabled);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(enabled ? themeColour(ThemeRole::Quiet)
                                : option->palette.color(QPalette::Mid));
        const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (box) {
            painter->drawRect(frame);
        } else {
            painter->drawEllipse(frame);
        }
        painter->restore();
    }
};

ThemeOfRun& themeOfRun()
{
    static ThemeOfRun theTheme;
    return theTheme;
}

} // namespace

void setThemeOfRun(const ThemeOfRun& theme)
{
    themeOfRun() = theme;
}

void applyTheme(const core::Settings& settings)
{
    // What the system had chosen before the program chose anything.
    static const bool systemIsDark =
        QApplication::palette().color(QPalette::Window).lightness() < kMiddle;
    static const QFont systemFont = QApplication::font();
    if (QApplication::style() == nullptr ||
        QApplication::style()->objectName() != QLatin1String(kStyleName)) {
        QApplication::setStyle(new FramedStyle);
    }
    const bool dark = settings.colourScheme == int(Scheme::System)
                          ? systemIsDark
                          : settings.colourScheme == int(Scheme::Dark);
    QApplication::setPalette(paletteOf(themeOfRun().dark.value_or(dark)));
    QFont font = systemFont;
    if (font.pointSizeF() > 0.0) {
        const int percent = themeOfRun().fontPercent.value_or(settings.fontPercent);
        font.setPointSizeF(font.pointSizeF() * percent / 100.0);
    }
    if (font != QApplication::font()) {
        QApplication::setFont(font);
    }
}

bool isDark()
{
    return QApplication::palette().color(QPalette::Window).lightness() < kMiddle;
}

QColor themeColour(ThemeRole role, bool dark)
{
    const Pair& pair = kColours[std::size_t(role)];
    return QColor::fromRgb(dark ? pair.dark : pair.light);
}

QColor themeColour(ThemeRole role)
{
    return themeColour(role, isDark());
}

} // namespace kestrav::desktop

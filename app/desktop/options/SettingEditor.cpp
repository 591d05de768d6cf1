#include "app/desktop/options/SettingEditor.h"

#include "app/desktop/options/SettingRows.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <variant>

namespace kestrav::desktop
{

namespace
{

using core::Settings;

constexpr int kDecimals = 6;

// A wheel turned over a control that has not the focus scrolls what it stands in.
class WheelGuard : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const control = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Wheel && control != nullptr && !control->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

SettingEditor::SettingEditor(const core::SettingInfo& info, QWidget* parent)
    : QObject(parent), info_(info)
{
    if (info.name == "displayFlags") {
        makeFlags(parent);
    } else if (std::holds_alternative<bool Settings::*>(info.field)) {
        makeSwitch(parent);
    } else if (core::settingIsText(info)) {
        makeText(parent);
    } else if (!settingChoices(info, Settings{}).isEmpty()) {
        makeChooser(parent);
    } else if (std::holds_alternative<int Settings::*>(info.field)) {
        makeWholeNumber(parent);
    } else {
        makeNumber(parent);
    }
    if (widget_ != control_) {
        widget_->setFocusProxy(control_);
    }
    if (!qobject_cast<QCheckBox*>(control_) && !qobject_cast<QLineEdit*>(control_)) {
        control_->setFocusPolicy(Qt::StrongFocus);
        control_->installEventFilter(new WheelGuard(this));
    }
}

void SettingEditor::name(QWidget* control, const char* kind)
{
    const QString name = toQt(info_.name);
    control->setObjectName(name.left(1).toUpper() + name.mid(1) + QLatin1String(kind));
    control->setAccessibleName(settingLabel(settingRow(info_.name)));
    control->setToolTip(settingMeaning(info_) + QLatin1Char('.'));
}

void SettingEditor::makeFlags(QWidget* parent)
{
    widget_ = new QWidget(parent);
    auto* const box = new QVBoxLayout(widget_);
    box->setContentsMargins({});
    auto* const english = new QCheckBox(tr("English names"), widget_);
    name(english, "EnglishCheckBox");
    english->setAccessibleName(english->text());
    auto* const glyphs = new QCheckBox(tr("Glyphs instead of letters"), widget_);
    name(glyphs, "GlyphsCheckBox");
    glyphs->setAccessibleName(glyphs->text());
    box->addWidget(english);
    box->addWidget(glyphs);
    control_ = english;
    show_ = [english, glyphs](const Settings& settings) {
        const auto flags = static_cast<unsigned>(settings.displayFlags);
        english->setChecked((flags & core::kEnglishNames) != 0);
        glyphs->setChecked((flags & core::kGlyphNames) != 0);
    };
    store_ = [english, glyphs](Settings& settings) {
        auto flags = static_cast<unsigned>(settings.displayFlags);
        flags &= ~(core::kEnglishNames | core::kGlyphNames);
        flags |= english->isChecked() ? core::kEnglishNames : 0U;
        flags |= glyphs->isChecked() ? core::kGlyphNames : 0U;
        settings.displayFlags = static_cast<int>(flags);
    };
    connect(english, &QCheckBox::clicked, this, &SettingEditor::edited);
    connect(glyphs, &QCheckBox::clicked, this, &SettingEditor::edited);
}

void SettingEditor::makeSwitch(QWidget* parent)
{
    auto* const box = new QCheckBox(parent);
    name(box, "CheckBox");
    widget_ = control_ = box;
    show_ = [this, box](const Settings& settings) {
        box->setChecked(core::settingValue(settings, info_) != 0.0);
    };
    store_ = [this, box](Settings& settings) {
        core::storeSetting(settings, info_, box->isChecked() ? 1.0 : 0.0);
    };
    connect(box, &QCheckBox::clicked, this, &SettingEditor::edited);
}

void SettingEditor::makeChooser(QWidget* parent)
{
    auto* const box = new QComboBox(parent);
    name(box, "ComboBox");
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(18);
    widget_ = control_ = box;
    show_ = [this, box](const Settings& settings) {
        box->clear();
        box->addItems(settingChoices(info_, settings));
        box->setCurrentIndex(int(core::settingValue(settings, info_)) - int(info_.lowest));
    };
    store_ = [this, box](Settings& settings) {
        core::storeSetting(settings, info_, box->currentIndex() + info_.lowest);
    };
    connect(box, &QComboBox::currentIndexChanged, this, [this] {
        if (!showing_) {
            emit edited();
        }
    });
}

void SettingEditor::makeWholeNumber(QWidget* parent)
{
    auto* const box = new QSpinBox(parent);
    name(box, "SpinBox");
    box->setRange(int(info_.lowest), int(info_.highest));
    box->setSuffix(toQt(settingRow(info_.name).unit));
    widget_ = control_ = box;
    show_ = [this, box](const Settings& settings) {
        box->setValue(int(core::settingValue(settings, info_)));
    };
    store_ = [this, box](Settings& settings) {
        core::storeSetting(settings, info_, box->value());
    };
    connect(box, &QSpinBox::valueChanged, this, [this] {
        if (!showing_) {
            emit edited();
        }
    });
}

void SettingEditor::makeNumber(QWidget* parent)
{
    auto* const box = new QDoubleSpinBox(parent);
    name(box, "SpinBox");
    // Numbers are typed and shown the same way in every country, as everywhere in the program.
    box->setLocale(QLocale::c());
    box->setRange(info_.lowest, info_.highest);
    box->setDecimals(kDecimals);
    box->setSuffix(toQt(settingRow(info_.name).unit));
    widget_ = control_ = box;
    show_ = [this, box](const Settings& settings) {
        box->setValue(core::settingValue(settings, info_));
    };
    store_ = [this, box](Settings& settings) {
        core::storeSetting(settings, info_, box->value());
    };
    connect(box, &QDoubleSpinBox::valueChanged, this, [this] {
        if (!showing_) {
            emit edited();
        }
    });
}

void SettingEditor::makeText(QWidget* parent)
{
    auto* const line = new QLineEdit(parent);
    name(line, "Edit");
    line->setMaxLength(int(info_.highest));
    widget_ = control_ = line;
    show_ = [this, line](const Settings& settings) {
        line->setText(toQt(core::settingText(settings, info_)));
    };
    store_ = [this, line](Settings& settings) {
        core::storeSettingText(settings, info_, toUtf8(line->text()));
    };
    connect(line, &QLineEdit::textEdited, this, &SettingEditor::edited);
    if (info_.name == "atlasPath") {
        widget_ = new QWidget(parent);
        auto* const box = new QHBoxLayout(widget_);
        box->setContentsMargins({});
        box->addWidget(line, 1);
        auto* const browse = new QPushButton(tr("Browse..."), widget_);
        browse->setObjectName(QStringLiteral("AtlasPathButton"));
        browse->setAccessibleName(tr("Browse for the folder of the atlas"));
        browse->setAutoDefault(false);
        box->addWidget(browse);
        connect(browse, &QPushButton::clicked, this, [this, line] {
            const auto folder =
                TMessages::folder(line->window(), tr("Folder of the Atlas"), line->text());
            if (folder) {
                line->setText(*folder);
                emit edited();
            }
        });
    }
}

void SettingEditor::show(const Settings& settings)
{
    showing_ = true;
    show_(settings);
    showing_ = false;
}

void SettingEditor::store(Settings& settings) const
{
    store_(settings);
}

SettingEditor* addSettingRow(QFormLayout* form, std::string_view setting, const QString& label)
{
    auto* const editor = new SettingEditor(*core::findSetting(setting), form->parentWidget());
    const QString text = label.isEmpty() ? settingLabel(settingRow(setting)) : label;
    if (auto* const box = qobject_cast<QCheckBox*>(editor->widget())) {
        box->setText(text);
        form->addRow(box);
    } else {
        form->addRow(text + QLatin1Char(':'), editor->widget());
    }
    return editor;
}

} // namespace kestrav::desktop

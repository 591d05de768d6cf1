// City, country, zone, saving time, longitude and latitude of a form, and the look-up that fills
// them.
#pragma once

#include "app/desktop/entry/PlaceSource.h"
#include "core/Chart.h"
#include "data/PlaceLookup.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <string>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace kestrav::desktop
{

class Workspace;

class PlaceFields : public QObject
{
    Q_OBJECT

public:
    /// What is known about a place at the moment that the form has.
    using Answering =
        std::function<data::PlaceAnswer(const data::Places& places, const data::Place& place)>;

    PlaceFields(Workspace& workspace, QWidget* form);

    /// Without the row of saving time for a place that has no moment.
    void addTo(QFormLayout& rows, bool withSaving = true);
    void setAnswering(Answering answering);

    void fill(const core::Chart& chart, bool withPlace);
    /// Numbers that were not edited stay exactly as they came.
    void store(core::Chart& chart) const;
    /// Whether zone, longitude and latitude are understood.
    [[nodiscard]] bool complete() const;
    [[nodiscard]] bool hasZone() const;
    /// What was not typed yet, in words.
    [[nodiscard]] QStringList missing() const;

    /// The zone table's name of the zone in force, while it came from a place and was not edited.
    [[nodiscard]] std::string zoneName() const;

    /// Fills the values of a place.
    void takePlace(const PlacesPointer& places, std::uint32_t number);
    /// Takes zone and saving time of the place anew, after date or time were changed.
    void momentChanged();

    [[nodiscard]] QLineEdit* cityEdit() const
    {
        return city_;
    }

signals:
    void edited();

private:
    // A number that is typed beside a box for its letter.
    struct Number
    {
        QLineEdit* edit = nullptr;
        QLineEdit* letter = nullptr;
        QLabel* note = nullptr;
        std::optional<double> (*read)(std::wstring_view) = nullptr;
        const char* letters = nullptr; ///< positive and negative
        QString name;
        QString wrong;
        QString filledText; ///< as it was filled in
        QString filledLetter;
        double filledValue = 0.0;
        bool touched = false;

        [[nodiscard]] std::optional<double> value() const;
        void fill(std::optional<double> number);
    };

    void makeNumber(Number& number, QWidget* form, const char* name, int most,
                    const QString& letterName);
    void normalise(Number& number);
    void CountryEditExit();
    void LookUpButtonClick();
    void DstCheckBoxClick(bool inForce);
    void MapButtonClick();
    void lookUp();
    void showSource();
    void fillTime(const data::PlaceAnswer& answer);
    void warn(const data::PlaceAnswer& answer);
    void check();

    Workspace& workspace_;
    Answering answering_;
    QLineEdit* city_;
    QLineEdit* country_;
    QLabel* atlas_;
    QPushButton* lookUp_;
    QPushButton* map_;
    QCheckBox* savingOn_;
    QSpinBox* saving_;
    QLabel* savingNote_;
    Number zone_;
    Number longitude_;
    Number latitude_;
    bool savingTouched_ = false;
    bool filling_ = false;
    QString seenCity_; ///< looked up last, or filled in
    QString seenCountry_;
    PlacesPointer places_; ///< of the place that was taken
    std::optional<std::uint32_t> place_;
    QString shownWarning_;
};

} // namespace kestrav::desktop

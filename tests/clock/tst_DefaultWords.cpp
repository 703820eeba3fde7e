#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include "clock/ClockMode.h"
#include "drawing/ClockSpecial.h"
#include "drawing/DialStyles.h"
#include "drawing/FlagPosition.h"
#include "drawing/HandStyles.h"
#include "drawing/Shapes.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/WindowBorder.h"
#include "platform/LocalFiles.h"
#include "speech/SpeechPatterns.h"
#include "timers/SystemActions.h"
#include "timezones/ExactKeys.h"

using namespace Qt::StringLiterals;

namespace {

const QString DataFolder = QStringLiteral(TEMPOLARK_SOURCE_DIR "/data");

/// What the choices of a key are made of.
enum class Kind {
    None,      // there are no choices: the value is the user's own
    Words,     // the words that the code knows, all of them and no other
    Numbers,   // whole numbers
    Fonts,     // names; a font that is missing is replaced by the toolkit
    Files,     // paths of the stock data, or "None"
    Patterns,  // texts to speak, with no token that is unknown
    Format,    // of digits
    Actions    // each with its colour
};

struct Expected {
    QString Key;
    Kind Choices = Kind::None;
    QStringList Words;
};

QStringList Colours(const QStringList& more) {
    return mduUILib::MenuColours() + more;
}

const QStringList YesNo = {u"Yes"_s, u"No"_s};

std::vector<Expected> WordRows() {
    return {
        {u"Clocks"_s, Kind::Words, clockcore::ClockKindNames()},
        {u"Enable"_s, Kind::Words, YesNo},
        {u"Clock Shape"_s, Kind::Words, drawing::ShapeNames()},
        {u"Clock Special"_s, Kind::Words, drawing::ClockSpecialNames()},
        {u"Window State"_s,
         Kind::Words,
         {mduUILib::WindowStateName(0), mduUILib::WindowStateName(1),
          mduUILib::WindowStateName(2)}},
        {u"Window Border"_s, Kind::Words, mduUILib::WindowBorderNames()},
        {u"Window Title Bar"_s, Kind::Words, YesNo},
        {u"Window Shape"_s, Kind::Words, drawing::ShapeNames()},
        {u"Window Background Colour"_s, Kind::Words,
         Colours({u"Transparent"_s, u"Random"_s, u"Custom"_s})},
        {u"Hour Hand Style"_s, Kind::Words, drawing::HandStyleNames()},
        {u"Hour Hand Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Minute Hand Style"_s, Kind::Words, drawing::HandStyleNames()},
        {u"Minute Hand Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Second Hand Style"_s, Kind::Words, drawing::HandStyleNames()},
        {u"Second Hand Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Hand Head Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Hour Number Style"_s, Kind::Words, drawing::NumberStyleNames()},
        {u"Hour Number Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Minute Spot Style"_s, Kind::Words, drawing::SpotStyleNames()},
        {u"Digital Clock Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Calculator Local Time Font Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Calculator Time Font Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Time Zone Colour"_s, Kind::Words, Colours({u"Random"_s})},
        {u"Flag Position"_s, Kind::Words, drawing::FlagPositionNames()},
        {u"Speaker"_s, Kind::Words, YesNo},
        {u"Speak Timer Message"_s, Kind::Words, YesNo},
        {u"Speak Action Message"_s, Kind::Words, YesNo},
        {u"Time Zone Rules"_s, Kind::Words, mduTimeZones::ZoneRulesNames()},
        {u"Speak Time Zone Details"_s, Kind::Words, YesNo},
        {u"Message Colour"_s, Kind::Words, Colours({})},
    };
}

std::vector<Expected> OtherRows() {
    std::vector<Expected> rows;
    const auto add = [&rows](Kind kind, const QStringList& keys) {
        for (const QString& key : keys) {
            rows.push_back({key, kind, {}});
        }
    };
    add(Kind::Numbers, {u"Clock Image Size(%)"_s,
                        u"Clock Image Brightness(%)"_s,
                        u"Auto Background Display"_s,
                        u"Sun Moon Size"_s,
                        u"Window Open/Close Animation Rate"_s,
                        u"Hour Hand Length(%)"_s,
                        u"Hour Hand Line Width"_s,
                        u"Minute Hand Length(%)"_s,
                        u"Minute Hand Line Width"_s,
                        u"Second Hand Length(%)"_s,
                        u"Second Hand Line Width"_s,
                        u"Hour Number Size"_s,
                        u"Hour Number Position(%)"_s,
                        u"Minute Spot Position(%)"_s,
                        u"Minute Spot Size"_s,
                        u"Digital Font Size"_s,
                        u"Calculator Local Time Font Size"_s,
                        u"Calculator Time Font Size"_s,
                        u"Time Zone Label Size"_s,
                        u"Music Volume"_s,
                        u"Speaker Volume"_s,
                        u"Speak Rate"_s,
                        u"Message Display Speed"_s,
                        u"Message Display Time"_s});
    add(Kind::Fonts, {u"Hour Number Font"_s, u"Digital Clock Font"_s,
                      u"Calculator Local Time Font"_s, u"Calculator Time Font"_s});
    add(Kind::Files, {u"Timer Sound File"_s});
    add(Kind::Patterns, {u"Speech Day Pattern"_s, u"Speech Hour Pattern"_s,
                         u"Speech Minute Pattern"_s, u"Speech Second Pattern"_s});
    add(Kind::Format, {u"Digital Clock Format"_s});
    add(Kind::None, {u"Stay Time"_s,
                     u"Clock Image File"_s,
                     u"Clock CentralX(%)"_s,
                     u"Clock CentralY(%)"_s,
                     u"Window Top"_s,
                     u"Window Left"_s,
                     u"Window Width"_s,
                     u"Window Height"_s,
                     u"Window Background File"_s,
                     u"Transparent Icon Left"_s,
                     u"Transparent Icon Top"_s,
                     u"Minute Spot Image File"_s,
                     u"Digital Clock CentralX(%)"_s,
                     u"Digital Clock CentralY(%)"_s,
                     u"Time Zone Name Left"_s,
                     u"Time Zone Name Top"_s,
                     u"Flag File"_s,
                     u"Time Zone Standard Name"_s,
                     u"Time Zone Standard Start Time"_s,
                     u"Time Zone Standard GMT (Minutes)"_s,
                     u"Time Zone Daylight Name"_s,
                     u"Time Zone Daylight Start Time"_s,
                     u"Time Zone Daylight GMT (Minutes)"_s,
                     u"Time Zone Id"_s,
                     u"Hour Sound File"_s,
                     u"Second Sound File"_s,
                     u"Music File"_s,
                     u"Speaker Voice"_s,
                     u"Speaker Image Left"_s,
                     u"Speaker Image Top"_s});
    add(Kind::Actions, {u"Message Action Colour"_s});
    return rows;
}

QStringList Sorted(QStringList words) {
    words.sort();
    return words;
}

bool IsStock(const QString& choice) {
    return choice == u"None"_s || QFile::exists(mduLib::ResolveAppPath(choice, DataFolder));
}

/// Whether a text keeps nothing in angle brackets when it is spoken.
bool IsKnownPattern(const QString& choice) {
    const QDateTime moment(QDate(2026, 6, 15), QTime(15, 10));
    return !speech::ExpandPattern(moment, choice, u"Paris"_s).contains(u'<');
}

bool IsFormat(const QString& choice) {
    static const QRegularExpression known(u"^(hh:)?mm(:ss)?( ampm)?$"_s);
    return known.match(choice).hasMatch();
}

bool IsActionWithColour(const QString& choice) {
    const QStringList actions = {timers::ActionText::LogOff, timers::ActionText::NormalShutdown,
                                 timers::ActionText::Reboot, timers::ActionText::ForcedShutdown,
                                 timers::ActionText::LockWorkstation};
    return actions.contains(choice.section(u':', 0, 0)) &&
           mduUILib::MenuColours().contains(choice.section(u':', 1));
}

bool AreAll(const QStringList& choices, bool (*is)(const QString&)) {
    return std::all_of(choices.begin(), choices.end(), is);
}

}  // namespace

/// What the default file of a clock offers, held against what the code knows.
class tst_DefaultWords : public QObject {
    Q_OBJECT

    ClockProperties default_;

    QStringList ChoicesOf(const QString& key) const {
        const QString raw = mduLib::GetPropertyRaw(key, default_);
        return raw.contains(u',') ? mduLib::GetPropertyChoices(key, default_).split(u',')
                                  : QStringList();
    }

private Q_SLOTS:
    void initTestCase() {
        const platform::LocalFiles files;
        QVERIFY(mduLib::ReadPropertyFile(files, DataFolder + u"/ini/Tempolark.ini"_s, default_));
    }

    void EveryKeyIsToldHere() {
        QStringList told;
        for (const Expected& row : WordRows()) {
            told += row.Key;
        }
        for (const Expected& row : OtherRows()) {
            told += row.Key;
        }
        QStringList keys;
        for (int row = 1; row <= default_.UpperBound(); ++row) {
            if (!default_[row].Name.isEmpty()) {
                keys += default_[row].Name;
            }
        }
        QCOMPARE(Sorted(keys), Sorted(told));
    }

    void Words_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("words");
        for (const Expected& row : WordRows()) {
            QTest::newRow(qPrintable(row.Key)) << row.Key << row.Words;
        }
    }

    void Words() {
        QFETCH(QString, key);
        QFETCH(QStringList, words);
        QCOMPARE(Sorted(ChoicesOf(key)), Sorted(words));
        QVERIFY(!words.contains(QString()));
    }

    void TheOtherChoices_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("kind");
        for (const Expected& row : OtherRows()) {
            QTest::newRow(qPrintable(row.Key)) << row.Key << static_cast<int>(row.Choices);
        }
    }

    void TheOtherChoices() {
        QFETCH(QString, key);
        QFETCH(int, kind);
        const QStringList choices = ChoicesOf(key);
        QCOMPARE(choices.isEmpty(), static_cast<Kind>(kind) == Kind::None);
        switch (static_cast<Kind>(kind)) {
            case Kind::Numbers:
                QVERIFY(AreAll(choices, [](const QString& choice) {
                    return QString::number(choice.toInt()) == choice;
                }));
                break;
            case Kind::Fonts:
                QVERIFY(AreAll(choices, [](const QString& choice) { return !choice.isEmpty(); }));
                break;
            case Kind::Files:
                QVERIFY(AreAll(choices, IsStock));
                break;
            case Kind::Patterns:
                QVERIFY(AreAll(choices, IsKnownPattern));
                break;
            case Kind::Format:
                QVERIFY(AreAll(choices, IsFormat));
                break;
            case Kind::Actions:
                QVERIFY(AreAll(choices, IsActionWithColour));
                QCOMPARE(choices.size(), 4);  // the first of the five is the value itself
                break;
            default:
                break;
        }
    }
};

QTEST_GUILESS_MAIN(tst_DefaultWords)
#include "tst_DefaultWords.moc"

#include <QTest>

#include "clock/StyleFiles.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;
using clockcore::StyleFiles;

struct StyleDesk : MachineWithZones {
    StyleFiles Styles{TheProgram};
    ClockProperties Present;
    QString Problem;

    StyleDesk() {
        mduMain::NameProgramFolders(Module.Paths);
        mduLib::PutProperty(u"Time Zone Standard Name"_s, u"Present Time"_s, Present);
    }
    /// The default file with one replacement, as a style.
    QString Style(const QByteArray& from, const QByteArray& to) {
        QByteArray style = Machine.ReadFile(u"ini/Tempolark.ini"_s);
        style.replace(from, to);
        return Machine.WriteFile(u"Styles/S.ini"_s, style);
    }
    std::optional<ClockProperties> Read(const QString& style, const QString& clock) {
        return Styles.Read(style, clock, Present, Problem);
    }
};

class tst_StyleFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StyleKeepsTheClocksZone() {
        StyleDesk desk;
        const QString style = desk.Style("Hour Hand Style=3D,", "Hour Hand Style=3D Gold,");
        const QString clock =
            desk.Machine.WriteFile(u"c.ini"_s,
                                   "Time Zone:Time Zone Standard Name=Nepal Standard Time,x\r\n"
                                   "Time Zone:Time Zone Standard GMT (Minutes)=-345\r\n");
        const std::optional<ClockProperties> read = desk.Read(style, clock);
        QVERIFY(read);
        QCOMPARE(mduLib::GetProperty(u"Time Zone Standard Name"_s, *read),
                 u"Nepal Standard Time"_s);
        QCOMPARE(mduLib::GetProperty(u"Time Zone Standard GMT (Minutes)"_s, *read), u"-345"_s);
        QCOMPARE(mduLib::GetProperty(u"Hour Hand Style"_s, *read), u"3D Gold"_s);
        QVERIFY(mduLib::GetPropertyRaw(u"Hour Hand Style"_s, *read)
                    .startsWith(u"3D Gold,Line,Frame,3D Metal Simple,"_s));
    }

    void ZoneKeysThatTheFileLacksComeFromTheClock() {
        StyleDesk desk;
        const std::optional<ClockProperties> read = desk.Read(desk.Style("", ""), u"/nowhere"_s);
        QVERIFY(read);
        QCOMPARE(mduLib::GetProperty(u"Time Zone Standard Name"_s, *read), u"Present Time"_s);
    }

    void OlderStyleGainsKeysOnTheDisk() {
        StyleDesk desk;
        const QString style = desk.Machine.WriteFile(u"Styles/Old.ini"_s,
                                                     "Clock:Clocks=Digital,Analogue,Digital\r\n");
        desk.Machine.SetAge(u"Styles/Old.ini"_s, 7200);  // the default is an hour old
        const std::optional<ClockProperties> read = desk.Read(style, {});
        QVERIFY(read);
        QCOMPARE(mduLib::GetProperty(u"Clocks"_s, *read), u"Digital"_s);
        QCOMPARE(mduLib::GetProperty(u"Minute Hand Length(%)"_s, *read), u"75"_s);
        const QByteArray onDisk = desk.Machine.ReadFile(u"Styles/Old.ini"_s);
        QVERIFY(onDisk.startsWith(
            "Clock:Clocks=Digital,Analogue,Digital,Calculator,Analogue and Digital\r\n"));
        QVERIFY(onDisk.contains("Minute Hand Length(%)=75,"));
    }

    void NewerStyleStaysAsItIs() {
        StyleDesk desk;
        const QByteArray content = "Clock:Clocks=Digital,Analogue,Digital\r\n";
        const QString style = desk.Machine.WriteFile(u"Styles/New.ini"_s, content);
        desk.Machine.SetAge(u"Styles/New.ini"_s, 60);
        QVERIFY(desk.Read(style, {}));
        QCOMPARE(desk.Machine.ReadFile(u"Styles/New.ini"_s), content);
    }

    void StyleThatCannotBeMergedIsTakenAsItIs() {
        StyleDesk desk;
        const QString style =
            desk.Machine.WriteFile(u"Styles/Old.ini"_s, "Clock:Clocks=Digital\r\n");
        desk.Machine.SetAge(u"Styles/Old.ini"_s, 7200);
        desk.Machine.Files.Unwritable += style;
        const std::optional<ClockProperties> read = desk.Read(style, {});
        QVERIFY(read);
        QCOMPARE(mduLib::GetProperty(u"Clocks"_s, *read), u"Digital"_s);
    }

    void NoStyle_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a letter") << QByteArray("Dear Sir,\r\nthe clock=late\r\n");
        QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0Clocks=1", 18);
        QTest::newRow("another program's") << QByteArray("[General]\nName=Value\n");
    }

    void NoStyle() {
        QFETCH(QByteArray, content);
        StyleDesk desk;
        const QString style = desk.Machine.WriteFile(u"Styles/No.ini"_s, content);
        desk.Machine.SetAge(u"Styles/No.ini"_s, 7200);
        QVERIFY(!desk.Read(style, {}));
        QCOMPARE(desk.Problem, style + u" is no clock style"_s);
        QCOMPARE(desk.Machine.ReadFile(u"Styles/No.ini"_s), content);
    }

    void AStyleOfOneLine_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("kind") << "Clocks=Digital\r\n"_ba;
        QTest::newRow("hand") << "Hour Hand Style=Line\r\n"_ba;
        QTest::newRow("ground") << "Window Background Colour=Red\r\n"_ba;
    }

    void AStyleOfOneLine() {
        QFETCH(QByteArray, line);
        StyleDesk desk;
        QVERIFY(desk.Read(desk.Machine.WriteFile(u"Styles/One.ini"_s, line), {}));
        QCOMPARE(desk.Problem, QString());
    }

    void MissingStyle() {
        StyleDesk desk;
        QVERIFY(!desk.Read(desk.Machine.AppFolder() + u"/Styles/none.ini"_s, {}));
        QVERIFY(!desk.Read({}, {}));
        QVERIFY(!desk.Read(desk.Machine.AppFolder(), {}));
        QVERIFY(desk.Problem.isEmpty());
    }

    void PeeksWithoutAMerge() {
        StyleDesk desk;
        const QString style = desk.Style("Hour Hand Width", "Hour Hand Width");
        desk.Machine.SetAge(u"Styles/S.ini"_s, 7200);
        const QByteArray content = desk.Machine.ReadFile(u"Styles/S.ini"_s);
        const std::optional<ClockProperties> read = desk.Styles.Peek(style, desk.Problem);
        QVERIFY(read.has_value());
        QCOMPARE(mduLib::GetProperty(u"Clocks"_s, *read), u"Analogue"_s);
        QCOMPARE(desk.Problem, QString());
        QCOMPARE(desk.Machine.ReadFile(u"Styles/S.ini"_s), content);
        QVERIFY(!desk.Styles.Peek(u"/none.ini"_s, desk.Problem));
        QCOMPARE(desk.Problem, u"/none.ini is not there any more"_s);
    }

    void SavePath_data() {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("path");
        QTest::newRow("plain") << u"/s/Walnut.ini"_s << u"/s/Walnut.ini"_s;
        QTest::newRow("no stem") << u"/s/.ini"_s << u"/s/unknown.ini"_s;
        QTest::newRow("no stem, stored form") << u"\\s\\.ini"_s << u"/s/unknown.ini"_s;
        QTest::newRow("no extension") << u"/s/Walnut"_s << u"/s/Walnut.ini"_s;
        QTest::newRow("umlaut") << u"/s/Würfel"_s << u"/s/Würfel.ini"_s;
    }

    void SavePath() {
        QFETCH(QString, chosen);
        QTEST(StyleFiles::SavePath(chosen), "path");
    }

    void WritesWithoutTheZone() {
        StyleDesk desk;
        ClockProperties look;
        mduLib::ReadPropertyFile(desk.Machine.Files, desk.Module.Paths.ZoneDefaultFile(), look);
        mduLib::PutProperty(u"Time Zone Standard Name"_s, u"Nepal Standard Time"_s, look);
        mduLib::PutProperty(u"Time Zone Daylight GMT (Minutes)"_s, u"60"_s, look);
        const QString path = desk.Machine.AppFolder() + u"/Mine.ini"_s;
        QVERIFY(desk.Styles.Write(path, look, QRectF(15, 30.5, 4500, 3000)));
        ClockProperties written;
        QVERIFY(mduLib::ReadPropertyFile(desk.Machine.Files, path, written));
        QCOMPARE(mduLib::GetPropertyRaw(u"Time Zone Standard Name"_s, written), u""_s);
        QCOMPARE(mduLib::GetPropertyRaw(u"Time Zone Daylight GMT (Minutes)"_s, written), u""_s);
        QCOMPARE(mduLib::GetProperty(u"Window Left"_s, written), u"15"_s);
        QCOMPARE(mduLib::GetProperty(u"Window Top"_s, written), u"30.5"_s);
        QCOMPARE(mduLib::GetProperty(u"Window Width"_s, written), u"4500"_s);
        QCOMPARE(mduLib::GetProperty(u"Window Height"_s, written), u"3000"_s);
        QCOMPARE(mduLib::GetPropertyRaw(u"Enable"_s, written), u"Yes,Yes,No"_s);
    }

    void TellsOfAFileThatCannotBeWritten() {
        StyleDesk desk;
        QVERIFY(
            !desk.Styles.Write(desk.Machine.AppFolder() + u"/none/Mine.ini"_s, {}, std::nullopt));
    }

    void NamesTheStylesOfTheFolder() {
        StyleDesk desk;
        QCOMPARE(desk.Styles.Names(), QStringList());
        desk.Machine.WriteFile(u"Styles/One.ini"_s, "Clocks=Digital");
        desk.Machine.WriteFile(u"Styles/notes.txt"_s, "");
        desk.Machine.WriteFile(u"Styles/One.ini.bak"_s, "Clocks=Digital");
        desk.Machine.WriteFile(u"Styles/Zwölf Uhr.ini"_s, "Clocks=Digital");
        QStringList names = desk.Styles.Names();
        names.sort();
        QCOMPARE(names, (QStringList{u"One.ini"_s, u"Zwölf Uhr.ini"_s}));
    }

    void TellsAStyleOfTheFolder() {
        StyleDesk desk;
        const QString folder = desk.Module.Paths.StylesFolder;
        QCOMPARE(desk.Styles.NameInFolder(folder + u"One.ini"_s), u"One"_s);
        QCOMPARE(desk.Styles.NameInFolder(folder + u"../Styles//One.ini"_s), u"One"_s);
        QCOMPARE(desk.Styles.NameInFolder(u"/elsewhere/One.ini"_s), QString());
        QCOMPARE(desk.Styles.NameInFolder(folder + u"Sub/One.ini"_s), QString());
        QCOMPARE(desk.Styles.NameInFolder(folder + u"One.txt"_s), QString());
    }
};

QTEST_GUILESS_MAIN(tst_StyleFiles)
#include "tst_StyleFiles.moc"

#include <QImage>

#include "Companion.h"

using namespace Qt::StringLiterals;

class tst_RenderCommand : public QObject {
    Q_OBJECT

    /// A clock with three lines for hands, its file named after a zone without daylight time.
    static QString WriteClock(const Companion& companion, const QByteArray& more = {}) {
        return companion.Write(u"UTC.ini"_s,
                               "Clocks=Analogue\r\nWindow Background Colour=Yellow\r\n"
                               "Clock CentralX(%)=-1\r\nClock CentralY(%)=-1\r\n"
                               "Hour Hand Style=Line\r\nMinute Hand Style=Line\r\n"
                               "Second Hand Style=Line\r\nHour Hand Colour=Blue\r\n"
                               "Minute Hand Colour=Green\r\nSecond Hand Colour=Red\r\n"
                               "Hour Hand Length(%)=40\r\nMinute Hand Length(%)=60\r\n"
                               "Second Hand Length(%)=90\r\nHour Hand Line Width=3\r\n"
                               "Minute Hand Line Width=3\r\nSecond Hand Line Width=1\r\n" +
                                   more);
    }

    static QStringList RenderAt(const Companion& companion, const QString& now) {
        return {u"--app-folder"_s, companion.Folder.path(),
                u"--user"_s,       u"x"_s,
                u"--local-zone"_s, u"UTC"_s,
                u"--now"_s,        now,
                u"clock"_s,        u"render"_s,
                u"UTC.ini"_s,      u"out.png"_s};
    }

private Q_SLOTS:
    void HandsStandAtTheTime() {
        const Companion companion;
        WriteClock(companion);
        const CompanionAnswer answer = companion.Run(RenderAt(companion, u"2026-03-04T15:00:30"_s) +
                                                     QStringList{u"--size"_s, u"201x201"_s});
        QCOMPARE(answer.Status, 0);
        QCOMPARE(answer.Output.trimmed(), "{\"height\":201,\"mode\":\"1\",\"width\":201}");
        const QImage image(companion.Folder.filePath(u"out.png"_s));
        QCOMPARE(image.size(), QSize(201, 201));
        // The centre is 100.5, to even 100. Hour at three, length 40; minute at twelve, 60; second
        // at six, 90.
        QCOMPARE(image.pixel(140, 100), qRgb(0, 0, 255));
        QCOMPARE(image.pixel(143, 100), qRgb(255, 255, 0));
        QCOMPARE(image.pixel(100, 40), qRgb(0, 255, 0));
        QCOMPARE(image.pixel(100, 190), qRgb(255, 0, 0));
        QCOMPARE(image.pixel(100, 191), qRgb(255, 255, 0));
        QCOMPARE(image.pixel(0, 0), qRgb(255, 255, 0));
    }

    /// On a screen of twice the resolution the picture has twice the pixels and shows the same.
    void TwiceTheResolution() {
        Companion companion;
        WriteClock(companion);
        companion.Environment.insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
        const CompanionAnswer answer = companion.Run(RenderAt(companion, u"2026-03-04T15:00:30"_s) +
                                                     QStringList{u"--size"_s, u"201x201"_s});
        QCOMPARE(answer.Output.trimmed(), "{\"height\":402,\"mode\":\"1\",\"width\":402}");
        const QImage image(companion.Folder.filePath(u"out.png"_s));
        QCOMPARE(image.size(), QSize(402, 402));
        // The centre is 201. Hour at three, length 80, six pixels wide; second at six, 181.
        QCOMPARE(image.pixel(280, 201), qRgb(0, 0, 255));
        QCOMPARE(image.pixel(270, 203), qRgb(0, 0, 255));
        QCOMPARE(image.pixel(270, 206), qRgb(255, 255, 0));
        QCOMPARE(image.pixel(201, 380), qRgb(255, 0, 0));
        QCOMPARE(image.pixel(201, 386), qRgb(255, 255, 0));
    }

    void RefusesAFileThatIsNoPropertyFile() {
        const Companion companion;
        companion.Write(u"UTC.ini"_s, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16));
        const CompanionAnswer answer = companion.Run(RenderAt(companion, u"2026-03-04T15:00:30"_s) +
                                                     QStringList{u"--size"_s, u"20x20"_s});
        QCOMPARE(answer.Status, 1);
        QVERIFY(answer.Messages.contains("can't be read as a property file"));
        QVERIFY(!QFileInfo::exists(companion.Folder.filePath(u"out.png"_s)));
    }

    void LeavesTheFileAsItIs() {
        const Companion companion;
        WriteClock(companion, "Time Zone Standard Name=\r\n");
        const QByteArray before = companion.Read(u"UTC.ini"_s);
        companion.Run(RenderAt(companion, u"2026-03-04T15:00:30"_s) +
                      QStringList{u"--size"_s, u"20x20"_s});
        QCOMPARE(companion.Read(u"UTC.ini"_s), before);
        QCOMPARE(QDir(companion.Folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{u"out.png"_s, u"UTC.ini"_s}));
    }

    void BackwardStandsMirrored() {
        const Companion companion;
        WriteClock(companion, "Clock Special=Analogue Backward\r\n");
        QCOMPARE(companion
                     .Run(RenderAt(companion, u"2026-03-04T03:00:00"_s) +
                          QStringList{u"--size"_s, u"200x200"_s, u"--ticks"_s, u"3"_s})
                     .Status,
                 0);
        const QImage image(companion.Folder.filePath(u"out.png"_s));
        QCOMPARE(image.pixel(62, 100), qRgb(0, 0, 255));
        QCOMPARE(image.pixel(138, 100), qRgb(255, 255, 0));
    }

    void UnknownKindDrawsNoHands() {
        const Companion companion;
        companion.Write(u"UTC.ini"_s, "Clocks=Sundial\r\n");
        const CompanionAnswer answer = companion.Run(RenderAt(companion, u"2026-03-04T03:00:00"_s) +
                                                     QStringList{u"--size"_s, u"20x10"_s});
        QCOMPARE(answer.Object()[u"mode"_s].toString(), u"0"_s);
        QCOMPARE(answer.Object()[u"width"_s].toInt(), 20);
        QCOMPARE(answer.Object()[u"height"_s].toInt(), 10);
    }

    void WrongArguments_data() {
        QTest::addColumn<QStringList>("more");
        QTest::newRow("no size") << QStringList{};
        QTest::newRow("no number") << QStringList{u"--size"_s, u"axb"_s};
        QTest::newRow("zero") << QStringList{u"--size"_s, u"0x10"_s};
        QTest::newRow("negative") << QStringList{u"--size"_s, u"-5x10"_s};
        QTest::newRow("too large") << QStringList{u"--size"_s, u"16001x10"_s};
        QTest::newRow("half") << QStringList{u"--size"_s, u"10x"_s};
        QTest::newRow("ticks") << QStringList{u"--size"_s, u"10x10"_s, u"--ticks"_s, u"x"_s};
        QTest::newRow("negative ticks")
            << QStringList{u"--size"_s, u"10x10"_s, u"--ticks"_s, u"-1"_s};
    }

    void WrongArguments() {
        QFETCH(QStringList, more);
        const Companion companion;
        WriteClock(companion);
        const CompanionAnswer answer =
            companion.Run(RenderAt(companion, u"2026-03-04T03:00:00"_s) + more);
        QCOMPARE(answer.Status, 2);
        QVERIFY(answer.Messages.contains("clock render FILE PNG --size WxH"));
        QVERIFY(companion.Read(u"out.png"_s).isEmpty());
    }

    void MissingFileFails() {
        const Companion companion;
        QCOMPARE(companion
                     .Run(RenderAt(companion, u"2026-03-04T03:00:00"_s) +
                          QStringList{u"--size"_s, u"10x10"_s})
                     .Status,
                 1);
    }

    void PushesOpened() {
        const Companion companion;
        const QString file = companion.Write(u"OpenedForms.txt"_s, "A=\r\nB=\r\nC=\r\n");
        const auto push = [&](const QString& name) {
            return companion.Run({u"shell"_s, u"push-opened"_s, file, name});
        };
        QCOMPARE(push(u"C"_s).Output.trimmed(), "[\"C\",\"A\",\"B\"]");
        QCOMPARE(push(u"Tempolark Central D"_s).Output.trimmed(), "[\"D\",\"C\",\"A\",\"B\"]");
        QCOMPARE(companion.Read(u"OpenedForms.txt"_s), QByteArray("D=\r\nC=\r\nA=\r\nB=\r\n"));
    }

    void PushMakesTheFile() {
        const Companion companion;
        const CompanionAnswer answer =
            companion.Run({u"shell"_s, u"push-opened"_s, u"new.txt"_s, u"Zürich"_s});
        QCOMPARE(answer.Status, 0);
        QCOMPARE(answer.Array().first().toString(), u"Zürich"_s);
        QCOMPARE(companion.Read(u"new.txt"_s), QByteArray("Z\xC3\xBCrich=\r\n"));
    }
};

QTEST_GUILESS_MAIN(tst_RenderCommand)
#include "tst_RenderCommand.moc"

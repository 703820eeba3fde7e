#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

/// What `clock render` refuses (ClockCommands); tst_RenderCommand tells what it draws.
class tst_ClockRender : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsOfAFileThatCantBeRead();
    void tellsOfAPictureThatCantBeWritten();
    void refusesASize_data();
    void refusesASize();
};

void tst_ClockRender::tellsOfAFileThatCantBeRead() {
    const Companion companion;
    const CompanionAnswer answer =
        companion.Run({u"--app-folder"_s, u"app"_s, u"clock"_s, u"render"_s, u"missing.ini"_s,
                       u"out.png"_s, u"--size"_s, u"300x200"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, "{\"height\":200,\"mode\":\"0\",\"width\":300}\n"_ba);
    QVERIFY(answer.Messages.contains("missing.ini can't be read as a property file"));
    QVERIFY(!QFileInfo::exists(companion.Folder.filePath(u"out.png"_s)));
}

void tst_ClockRender::tellsOfAPictureThatCantBeWritten() {
    const Companion companion;
    companion.Write(u"UTC.ini"_s, "Clocks=Analogue\r\n");
    const CompanionAnswer answer =
        companion.Run({u"--app-folder"_s, u"app"_s, u"clock"_s, u"render"_s, u"UTC.ini"_s,
                       u"none/out.png"_s, u"--size"_s, u"30x20"_s});
    QCOMPARE(answer.Status, 1);
    QVERIFY2(answer.Messages.contains("none/out.png can't be written\n"),
             answer.Messages.constData());
}

void tst_ClockRender::refusesASize_data() {
    QTest::addColumn<QString>("size");
    QTest::newRow("no size") << QString();
    QTest::newRow("words") << u"big"_s;
    QTest::newRow("zero") << u"0x10"_s;
    QTest::newRow("too large") << u"16001x10"_s;
}

void tst_ClockRender::refusesASize() {
    QFETCH(QString, size);
    const CompanionAnswer answer =
        Companion().Run({u"--app-folder"_s, u"app"_s, u"clock"_s, u"render"_s, u"a.ini"_s,
                         u"out.png"_s, u"--size"_s, size});
    QCOMPARE(answer.Status, 2);
    QCOMPARE(answer.Output, QByteArray());
}

QTEST_GUILESS_MAIN(tst_ClockRender)
#include "tst_ClockRender.moc"

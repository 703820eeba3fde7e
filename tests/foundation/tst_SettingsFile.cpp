#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SettingsFile.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

/// A shell's file and its default.
struct Desk {
    Desk() {
        Default =
            Machine.WriteFile(u"default.ini"_s, "\r\nBar:Tool Bar=Top,Top,Left\r\nSide=1\r\n");
    }

    void Write(const QByteArray& content) { File = Machine.WriteFile(u"shell.ini"_s, content); }
    bool IsBroken() const { return mduMain::IsBrokenSettings(Machine.Files, File, Default); }
    QString ToolBar() const {
        return mduLib::GetProperty(u"Tool Bar"_s,
                                   mduMain::ReadSettings(Machine.Files, File, Default));
    }
    bool Replace() {
        ClockProperties settings;
        mduLib::PutProperty(u"Tool Bar"_s, u"Right"_s, settings);
        return mduMain::ReplaceSettings(Machine.Files, settings, File, Default);
    }

    FakeServices Machine;
    QString Default;
    QString File = Machine.AppFolder() + u"/shell.ini"_s;
};

}  // namespace

class tst_SettingsFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Breaks_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("broken");
        QTest::addColumn<QString>("toolBar");
        QTest::newRow("whole") << "Bar:Tool Bar=Left,Top,Left\r\nSide=1\r\n"_ba << false
                               << u"Left"_s;
        QTest::newRow("one key of many")
            << "x=1\r\nBar:TOOL BAR =Left\r\n"_ba << false << u"Left"_s;
        QTest::newRow("another key") << "Side=2\r\n"_ba << false << u"0"_s;
        QTest::newRow("empty") << QByteArray() << true << u"Top"_s;
        QTest::newRow("blank") << "\r\n\r\n"_ba << true << u"Top"_s;
        QTest::newRow("binary") << QByteArray("GIF89a\0Tool Bar=Left\n", 21) << true << u"Top"_s;
        QTest::newRow("binary without a zero")
            << "\x89PNG\r\n\x1A\n\xFF\xFE"_ba << true << u"Top"_s;
        QTest::newRow("another text") << "Dear Sir,\r\nBar=Left\r\n"_ba << true << u"Top"_s;
        QTest::newRow("32,767 lines")
            << "Tool Bar=Left\r\n" + QByteArray("x=\r\n").repeated(32766) << false << u"Left"_s;
        QTest::newRow("too long") << "Tool Bar=Left\r\n" + QByteArray("x=\r\n").repeated(32767)
                                  << true << u"Top"_s;
    }

    void Breaks() {
        QFETCH(QByteArray, content);
        Desk desk;
        desk.Write(content);
        QTEST(desk.IsBroken(), "broken");
        QTEST(desk.ToolBar(), "toolBar");
    }

    /// A file that was cut while it was written, beside such as have gaps.
    void LostEnds_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("read");
        const QByteArray end = "C:Third=3,4\r\nFourth=\r\n";
        QTest::newRow("after a line") << "A:First=x\r\n"_ba
                                      << "A:First=x\r\nB:Second=2\r\n" + end;
        QTest::newRow("after two") << "A:First=x\r\nB:Second=y\r\n"_ba
                                   << "A:First=x\r\nB:Second=y\r\n" + end;
        QTest::newRow("within the third") << "A:First=x\r\nB:Second=y\r\nC:Thi"_ba
                                          << "A:First=x\r\nB:Second=y\r\nC:Thi=\r\n" + end;
        QTest::newRow("in another order, with a key of its own")
            << "second=y\r\nMine=1\r\nFIRST=\r\n"_ba
            << "second=y\r\nMine=1\r\nFIRST=\r\n" + end;
        for (const char* content : {"A:First=x\r\nFourth=z\r\n", "B:Second=y\r\n",
                                    "A:First=x\r\nB:Second=y\r\nC:Third=z\r\nFourth=4\r\n"}) {
            QTest::addRow("left as it is, %d bytes", int(qstrlen(content)))
                << QByteArray(content) << QByteArray(content);
        }
    }

    void LostEnds() {
        QFETCH(QByteArray, content);
        Desk desk;
        desk.Machine.WriteFile(u"default.ini"_s,
                               "A:First=1\r\n\r\nB:Second=2\r\nC:Third=3,4\r\nFourth=\r\n");
        desk.Write(content);
        QVERIFY(!desk.IsBroken());
        const ClockProperties settings =
            mduMain::ReadSettings(desk.Machine.Files, desk.File, desk.Default);
        QTEST(mduLib::PropertyFileContent(settings), "read");
    }

    void WhatIsNotThereIsNotBroken() {
        Desk desk;
        QVERIFY(!desk.IsBroken());
        QCOMPARE(desk.ToolBar(), u"Top"_s);
        QVERIFY(desk.Replace());
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini"_s), "Tool Bar=Right\r\n"_ba);
        QVERIFY(!QFile::exists(desk.File + u".broken"_s));
    }

    void WithoutADefaultOnlyHarmCounts() {
        Desk desk;
        QVERIFY(QFile::remove(desk.Default));
        desk.Write("Mine=1\r\n");
        QVERIFY(!desk.IsBroken());
        desk.Write({});
        QVERIFY(desk.IsBroken());
        QCOMPARE(desk.ToolBar(), u"0"_s);
    }

    void ABrokenFileIsKept() {
        Desk desk;
        desk.Write("first\r\n");
        QCOMPARE(mduMain::NameToKeep(desk.Machine.Files, desk.File), desk.File + u".broken"_s);
        QVERIFY(desk.Replace());
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini"_s), "Tool Bar=Right\r\n"_ba);
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini.broken"_s), "first\r\n"_ba);
        desk.Write("second\r\n");
        QVERIFY(desk.Replace());
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini.broken"_s), "first\r\n"_ba);
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini.broken2"_s), "second\r\n"_ba);
        QCOMPARE(mduMain::NameToKeep(desk.Machine.Files, desk.File), desk.File + u".broken3"_s);
    }

    void AGoodFileIsReplacedWithoutACopy() {
        Desk desk;
        desk.Write("Tool Bar=Left\r\n");
        QVERIFY(desk.Replace());
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini"_s), "Tool Bar=Right\r\n"_ba);
        QVERIFY(!QFile::exists(desk.File + u".broken"_s));
    }

    void WhatCantBeReadIsLeft() {
        Desk desk;
        desk.Write("Tool Bar=Left\r\n");
        desk.Machine.Files.Unreadable += desk.File;
        QVERIFY(desk.IsBroken());
        QCOMPARE(desk.ToolBar(), u"Top"_s);
        QVERIFY(!desk.Replace());
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini"_s), "Tool Bar=Left\r\n"_ba);
    }

    void WhatCantBeKeptIsLeft() {
        Desk desk;
        desk.Write("text\r\n");
        desk.Machine.Files.Unwritable += desk.File + u".broken"_s;
        QVERIFY(!desk.Replace());
        QCOMPARE(desk.Machine.ReadFile(u"shell.ini"_s), "text\r\n"_ba);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsFile)
#include "tst_SettingsFile.moc"

// What the window of properties asks before it closes.
#include "editor/PropertyWindowDesk.h"

class tst_PropertyWindowClosing : public QObject {
    Q_OBJECT

    static constexpr auto SaveBox = "Do you want to save the Oslo?|36|Save Property";
    static constexpr auto ChangedBox =
        "Property has been changed, do you want to refresh with the new values?|36|"
        "Property Changed";
    static constexpr auto GoneBox =
        "\r\nis gone, do you want to save it anew?|36|Property File Gone";

private Q_SLOTS:
    void ClosingAsksForWhatIsNotSaved_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("stored");
        QTest::newRow("yes") << 6 << u"New"_s;
        QTest::newRow("no") << 7 << u"Old"_s;
    }
    void ClosingAsksForWhatIsNotSaved() {
        QFETCH(int, answer);
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Shell.Answers = {answer};
        desk.Told();
        QTest::mouseClick(&desk.Find<QPushButton>(u"cmdButton1"_s), Qt::LeftButton);
        QCOMPARE(desk.Shell.Boxes, QStringList{QString::fromLatin1(SaveBox)});
        QVERIFY(!desk.Window->isVisible());
        QTEST(desk.Stored(u"Title"_s), "stored");
        QCOMPARE(desk.Told().contains(u"refresh form"_s), answer == 6);
        QCOMPARE(desk.Windows.Find(desk.Window->hwnd()), nullptr);
    }

    void AnOpenEditorIsTakenAlong() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        desk.Type(u"Typed"_s);
        QVERIFY(desk.Grid().Editing().IsEditing());
        desk.Shell.Answers = {6};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Stored(u"Title"_s), u"Typed"_s);
    }

    void NothingIsAskedWithoutAChange() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Enter(u"Title"_s, u"Old"_s);
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Shell.Boxes, QStringList());
    }

    void ADismissedBoxLeavesTheWindow() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Shell.Answers = {2};
        QVERIFY(!desk.Window->close());
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
        QVERIFY(!desk.Told().endsWith(u"preview "_s));  // the clock goes on showing it
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {2};
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"Other's"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        desk.Search().setFocus();
        desk.View().setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(desk.Shell.Boxes.size(), 2);
    }

    void ClosingAsksForAChangeByOthers_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("cell");
        QTest::newRow("yes") << 6 << false << u"Other's"_s << u"Other's"_s;
        QTest::newRow("no") << 7 << true << u"New"_s << u"New"_s;
        QTest::newRow("dismissed") << 2 << false << u"Other's"_s << u"New"_s;
    }
    void ClosingAsksForAChangeByOthers() {
        QFETCH(int, answer);
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {6, answer};
        const bool closed = desk.Window->close();
        QTEST(closed, "closes");
        QCOMPARE(desk.Shell.Boxes,
                 (QStringList{QString::fromLatin1(SaveBox), QString::fromLatin1(ChangedBox)}));
        QTEST(desk.Stored(u"Title"_s), "stored");
        QTEST(desk.Cell(u"Title"_s), "cell");
        if (answer == 6) {
            desk.Window->Edit(EditAction::Undo);
            QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        }
    }

    void ADeletedFileIsAskedForAtClosing() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        QVERIFY(QFile::remove(desk.Clock->File));
        desk.Shell.Answers = {6, 7};
        QVERIFY(!desk.Window->close());
        QVERIFY(!QFile::exists(desk.Clock->File));
        desk.Shell.Answers = {6, 6};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Shell.Boxes.last(), desk.Clock->File + QString::fromLatin1(GoneBox));
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
    }

    void AFileThatCantBeReadKeepsTheWindow() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        const QByteArray locked("a\0b", 3);
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile), locked);
        desk.Shell.Answers = {6};
        QVERIFY(!desk.Window->close());
        QCOMPARE(desk.Machine.ReadFile(QString::fromLatin1(desk.ClockFile)), locked);
        QCOMPARE(desk.Info(),
                 desk.Clock->File + u" can't be read as a property file; it is left as it is"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
    }
};

QTEST_MAIN(tst_PropertyWindowClosing)
#include "tst_PropertyWindowClosing.moc"

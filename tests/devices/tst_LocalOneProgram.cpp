#include <QDir>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>
#include <future>

#include "platform/devices/LocalOneProgram.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using platform::LocalOneProgram;
using Role = platform::OneProgram::Role;
using Outcome = platform::OneProgram::Outcome;

namespace {

/// A program folder, and the place of its account's sockets.
struct Desk {
    QTemporaryDir Scratch;
    QString Folder = Scratch.filePath(u"clocks"_s);
    QString Sockets = Scratch.filePath(u"run"_s);
    QStringList Heard;

    Desk() {
        QDir().mkpath(Folder);
        QDir().mkpath(Sockets);
    }
    using Patience = LocalOneProgram::Patience;
    static constexpr Patience Long = {1h, 1h};

    std::unique_ptr<LocalOneProgram> Program(const Patience& patience = Long) const {
        return std::make_unique<LocalOneProgram>(Folder, Sockets, patience);
    }
    std::unique_ptr<LocalOneProgram> Running() {
        auto program = Program();
        if (program->Claim(u"first"_s).As != Role::Alone || !Listen(*program).isEmpty()) {
            qFatal("the first program can't have the folder");
        }
        return program;
    }
    QString Listen(LocalOneProgram& program) {
        return program.Listen([this](const QString& commandLine) { Heard += commandLine; });
    }

    /// A start somewhere else, while this thread is the program that runs.
    static std::future<Outcome> Start(const QString& folder, const QString& sockets,
                                      const QString& commandLine, const Patience& patience = Long) {
        return std::async(std::launch::async, [=] {
            return LocalOneProgram(folder, sockets, patience).Claim(commandLine);
        });
    }
    static bool IsDone(const std::future<Outcome>& start) {
        return start.wait_for(0s) == std::future_status::ready;
    }
};

}  // namespace

class tst_LocalOneProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFirstIsAlone() {
        Desk desk;
        const Outcome outcome = desk.Program()->Claim(u"Tokyo Standard Time"_s);
        QCOMPARE(outcome.As, Role::Alone);
        QCOMPARE(outcome.Problem, QString());
    }

    void HandsItsCommandLineOver_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::newRow("a zone") << u"Tokyo Standard Time"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("screen saver") << u"/s"_s;
        QTest::newRow("letters of all kinds") << u"S\u00E3o Tom\u00E9\n\u6771\u4EAC"_s;
        QTest::newRow("a long one") << QString(200'000, u'x');
    }

    void HandsItsCommandLineOver() {
        QFETCH(QString, commandLine);
        Desk desk;
        const auto running = desk.Running();
        auto later = Desk::Start(desk.Folder, desk.Sockets, commandLine);
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
        QTRY_COMPARE(desk.Heard, QStringList{commandLine});
    }

    void KnowsItsFolderByAnyName_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("trailing slash") << u"clocks/"_s;
        QTest::newRow("detour") << u"run/../clocks"_s;
        QTest::newRow("symbolic link") << u"link"_s;
        QTest::newRow("through a link") << u"run/up/clocks"_s;
    }

    void KnowsItsFolderByAnyName() {
        QFETCH(QString, name);
        Desk desk;
        QVERIFY(QFile::link(desk.Folder, desk.Scratch.filePath(u"link"_s)));
        QVERIFY(QFile::link(desk.Scratch.path(), desk.Sockets + u"/up"_s));
        const auto running = desk.Running();
        auto later = Desk::Start(desk.Scratch.filePath(name), desk.Sockets, u"UTC"_s);
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
        QTRY_COMPARE(desk.Heard, QStringList{u"UTC"_s});
    }

    void KnowsItsFolderByARelativeName() {
        Desk desk;
        const auto running = desk.Running();
        const QString before = QDir::currentPath();
        QDir::setCurrent(desk.Folder);
        auto later = Desk::Start(u"."_s, desk.Sockets, u"UTC"_s);
        QTRY_VERIFY(Desk::IsDone(later));
        QDir::setCurrent(before);
        QCOMPARE(later.get().As, Role::HandedOver);
    }

    /// From another session, say, whose sockets lie elsewhere.
    void FindsTheSocketWhereverItLies() {
        Desk desk;
        const auto running = desk.Running();
        auto later = Desk::Start(desk.Folder, desk.Scratch.filePath(u"nowhere"_s), u"UTC"_s);
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
    }

    void AnotherFolderIsAnotherProgram() {
        Desk desk;
        const auto running = desk.Running();
        const QString other = desk.Scratch.filePath(u"other"_s);
        QVERIFY(QDir().mkpath(other));
        LocalOneProgram program(other, desk.Sockets);
        QCOMPARE(program.Claim({}).As, Role::Alone);
        QCOMPARE(desk.Listen(program), QString());
        auto later = Desk::Start(desk.Folder, desk.Sockets, u"UTC"_s);
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
    }

    /// It may be filling its folder: that takes longer than an answer.
    void WaitsForOneThatIsAboutToListen() {
        Desk desk;
        const auto first = desk.Program();
        QCOMPARE(first->Claim({}).As, Role::Alone);
        auto later = Desk::Start(desk.Folder, desk.Sockets, u"UTC"_s, {1s, 1h});
        QCOMPARE(later.wait_for(1500ms), std::future_status::timeout);
        QCOMPARE(desk.Listen(*first), QString());
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
    }

    void FollowsOneThatEnds() {
        Desk desk;
        auto first = desk.Program();
        QCOMPARE(first->Claim({}).As, Role::Alone);
        auto later = Desk::Start(desk.Folder, desk.Sockets, u"UTC"_s);
        QCOMPARE(later.wait_for(300ms), std::future_status::timeout);
        first.reset();
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::Alone);
    }

    void ASocketThatIsLeftOverHoldsUpNobody() {
        Desk desk;
        QString socket;
        {
            const auto crashed = desk.Running();
            socket = QDir(desk.Sockets).entryList(QDir::System | QDir::NoDotAndDotDot).value(0);
        }
        QVERIFY(!socket.isEmpty());
        QFile left(desk.Sockets + u'/' + socket);
        QVERIFY(left.open(QIODevice::WriteOnly));
        left.close();
        const auto next = desk.Running();
        auto later = Desk::Start(desk.Folder, desk.Sockets, u"UTC"_s);
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
    }

    void GivesUpOnOneThatHangs_data() {
        QTest::addColumn<bool>("listens");
        QTest::addColumn<int>("answer");  // milliseconds
        QTest::addColumn<int>("start");
        QTest::newRow("before it listens") << false << 3'600'000 << 200;
        QTest::newRow("with an open socket") << true << 200 << 3'600'000;
    }

    /// Its thread never comes to its events.
    void GivesUpOnOneThatHangs() {
        QFETCH(bool, listens);
        QFETCH(int, answer);
        QFETCH(int, start);
        Desk desk;
        const auto hung = desk.Program();
        QCOMPARE(hung->Claim({}).As, Role::Alone);
        QVERIFY(!listens || desk.Listen(*hung).isEmpty());
        const Desk::Patience patience = {std::chrono::milliseconds(answer),
                                         std::chrono::milliseconds(start)};
        const Outcome outcome = desk.Program(patience)->Claim(u"UTC"_s);
        QCOMPARE(outcome.As, Role::Refused);
        QCOMPARE(
            outcome.Problem,
            u"Tempolark runs already with the folder %1, and does not answer"_s.arg(desk.Folder));
    }

    /// Two starts at the same moment, many times over.
    void OfTwoStartsOneRuns() {
        for (int time = 0; time < 50; ++time) {
            Desk desk;
            const auto one = desk.Program({100ms, 100ms});
            const auto two = desk.Program({100ms, 100ms});
            auto first = std::async(std::launch::async, [&] { return one->Claim({}).As; });
            const Role second = two->Claim({}).As;
            const Role other = first.get();
            QVERIFY((second == Role::Alone) != (other == Role::Alone));
            QVERIFY(second == Role::Refused || other == Role::Refused);
        }
    }

    void TellsAFolderThatCantBeClaimed() {
        Desk desk;
        const QString folder = desk.Scratch.filePath(u"none"_s);
        const Outcome outcome = LocalOneProgram(folder, desk.Sockets).Claim({});
        QCOMPARE(outcome.As, Role::Refused);
        QCOMPARE(outcome.Problem, u"The folder %1 can't be written"_s.arg(folder));
    }

    void TellsThatItCantListen() {
        Desk desk;
        LocalOneProgram program(desk.Folder, desk.Scratch.filePath(u"nowhere"_s));
        QCOMPARE(program.Claim({}).As, Role::Alone);
        QVERIFY(desk.Listen(program).startsWith(u"Later starts can't be heard: "_s));
    }

    /// Anybody who may open the socket may send anything.
    void LetsNonsensePass() {
        Desk desk;
        const auto running = desk.Running();
        const QString name =
            QDir(desk.Sockets).entryList(QDir::System | QDir::NoDotAndDotDot).value(0);
        QLocalSocket socket;
        socket.connectToServer(desk.Sockets + u'/' + name);
        QVERIFY(socket.waitForConnected());
        socket.write("\x7f\xff\xff\xf0 much too little");
        QVERIFY(socket.flush());
        auto later = Desk::Start(desk.Folder, desk.Sockets, u"UTC"_s);
        QTRY_VERIFY(Desk::IsDone(later));
        QCOMPARE(later.get().As, Role::HandedOver);
        QTRY_COMPARE(desk.Heard, QStringList{u"UTC"_s});
    }
};

QTEST_GUILESS_MAIN(tst_LocalOneProgram)
#include "tst_LocalOneProgram.moc"

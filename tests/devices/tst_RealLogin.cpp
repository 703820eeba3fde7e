#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTest>

#include "platform/devices/LogindActions.h"

using namespace Qt::StringLiterals;
using platform::LogindActions;

namespace {

const QString Manager = u"/org/freedesktop/login1"_s;
const QString ManagerInterface = u"org.freedesktop.login1.Manager"_s;
const QString MockInterface = u"org.freedesktop.DBus.Mock"_s;

}  // namespace

/// Needs a bus at DBUS_SYSTEM_BUS_ADDRESS on which a mock of the login service listens.
class tst_RealLogin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void asks_data();
    void asks();
    void asksForItsOwnSession();
    void asksForTheSessionOfTheScreen();
    void tellsThatItHasNoSession();
    void forcesPowerOff();
    void forcesPowerOffOnOlderServices();
    void tellsOfARefusal_data();
    void tellsOfARefusal();
    void tellsThatTheServiceIsAway();
    void tellsThatTheServiceHangs();
    void tellsThatThereIsNoBus();

private:
    QVariantList Mock(const QString& method, const QVariantList& arguments = {}) const;
    void AddMethod(const QString& interface, const QString& name, const QString& in,
                   const QString& out, const QString& code) const;
    QStringList Calls() const;

    QDBusConnection bus_{u"test"_s};
};

QVariantList tst_RealLogin::Mock(const QString& method, const QVariantList& arguments) const {
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, Manager, MockInterface, method);
    call.setArguments(arguments);
    const QDBusMessage reply = bus_.call(call);
    if (reply.type() != QDBusMessage::ReplyMessage) {
        qWarning("%s: %s", qPrintable(method), qPrintable(reply.errorMessage()));
    }
    return reply.arguments();
}

void tst_RealLogin::AddMethod(const QString& interface, const QString& name, const QString& in,
                              const QString& out, const QString& code) const {
    Mock(u"AddMethod"_s, {interface, name, in, out, code});
}

/// The calls that reached the service, as "Method argument argument".
QStringList tst_RealLogin::Calls() const {
    QStringList calls;
    const auto list = Mock(u"GetCalls"_s).value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        quint64 time = 0;
        QString call;
        QVariantList arguments;
        list.beginStructure();
        list >> time >> call >> arguments;
        list.endStructure();
        for (const QVariant& argument : arguments) {
            call += u' ' + argument.toString();
        }
        calls += call;
    }
    list.endArray();
    return calls;
}

void tst_RealLogin::initTestCase() {
    bus_ = QDBusConnection::connectToBus(QDBusConnection::SystemBus, u"test"_s);
    QVERIFY2(bus_.isConnected(), qPrintable(bus_.lastError().message()));
}

void tst_RealLogin::init() {
    Mock(u"Reset"_s);
    Mock(u"ClearCalls"_s);
}

void tst_RealLogin::asks_data() {
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("call");
    QTest::newRow("log off") << 0 << u"TerminateSession c7"_s;
    QTest::newRow("shutdown") << 1 << u"PowerOff false"_s;
    QTest::newRow("reboot") << 2 << u"Reboot false"_s;
    QTest::newRow("lock") << -1 << u"LockSession c7"_s;
}

void tst_RealLogin::asks() {
    QFETCH(int, flags);
    QFETCH(QString, call);
    LogindActions actions(u"c7"_s);
    const QString answer =
        flags < 0 ? actions.LockWorkStation() : actions.ExitWindowsEx(static_cast<unsigned>(flags));
    QCOMPARE(answer, QString());
    QCOMPARE(Calls(), QStringList(call));
}

void tst_RealLogin::asksForItsOwnSession() {
    AddMethod(ManagerInterface, u"GetSessionByPID"_s, u"u"_s, u"o"_s,
              u"ret = '/org/freedesktop/login1/session/own'"_s);
    Mock(u"AddSession"_s, {u"own"_s, u"seat0"_s, 500U, u"joe"_s, true});
    Mock(u"ClearCalls"_s);
    LogindActions actions({});
    QCOMPARE(actions.LockWorkStation(), QString());
    const QString pid = QString::number(QCoreApplication::applicationPid());
    QCOMPARE(Calls(), QStringList({u"GetSessionByPID "_s + pid, u"LockSession own"_s}));
    QCOMPARE(actions.ExitWindowsEx(0), QString());
    QCOMPARE(Calls().last(), u"TerminateSession own"_s);
}

void tst_RealLogin::asksForTheSessionOfTheScreen() {
    AddMethod(ManagerInterface, u"GetSessionByPID"_s, u"u"_s, u"o"_s,
              u"raise dbus.exceptions.DBusException('PID 7 does not belong to any known session', "
              u"name='org.freedesktop.login1.NoSessionForPID')"_s);
    Mock(u"AddSession"_s, {u"auto"_s, u"seat0"_s, 500U, u"joe"_s, true});
    QCOMPARE(LogindActions({}).LockWorkStation(), QString());
    QCOMPARE(Calls().last(), u"LockSession auto"_s);
}

void tst_RealLogin::tellsThatItHasNoSession() {
    AddMethod(ManagerInterface, u"GetSessionByPID"_s, u"u"_s, u"o"_s,
              u"raise dbus.exceptions.DBusException('PID 7 does not belong to any known session', "
              u"name='org.freedesktop.login1.NoSessionForPID')"_s);
    QCOMPARE(LogindActions({}).LockWorkStation(), u"PID 7 does not belong to any known session"_s);
    QCOMPARE(Calls().size(), 1);
}

void tst_RealLogin::forcesPowerOff() {
    AddMethod(ManagerInterface, u"PowerOffWithFlags"_s, u"t"_s, QString(), QString());
    QCOMPARE(LogindActions(u"c7"_s).ExitWindowsEx(13), QString());
    QCOMPARE(Calls(), QStringList(u"PowerOffWithFlags 16"_s));
}

void tst_RealLogin::forcesPowerOffOnOlderServices() {
    QCOMPARE(LogindActions(u"c7"_s).ExitWindowsEx(13), QString());
    QCOMPARE(Calls(), QStringList(u"PowerOff false"_s));

    AddMethod(ManagerInterface, u"PowerOffWithFlags"_s, u"t"_s, QString(),
              u"raise dbus.exceptions.DBusException('Invalid flags parameter', "
              u"name='org.freedesktop.DBus.Error.InvalidArgs')"_s);
    Mock(u"ClearCalls"_s);
    QCOMPARE(LogindActions(u"c7"_s).ExitWindowsEx(13), QString());
    QCOMPARE(Calls(), QStringList({u"PowerOffWithFlags 16"_s, u"PowerOff false"_s}));
}

void tst_RealLogin::tellsOfARefusal_data() {
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("reason");
    QTest::newRow("denied") << u"org.freedesktop.DBus.Error.AccessDenied"_s
                            << u"This is not allowed. Permission denied"_s;
    QTest::newRow("password wanted")
        << u"org.freedesktop.DBus.Error.InteractiveAuthorizationRequired"_s
        << u"This is not allowed. Permission denied"_s;
    QTest::newRow("held back") << u"org.freedesktop.login1.BlockedByInhibitorLock"_s
                               << u"Permission denied"_s;
}

void tst_RealLogin::tellsOfARefusal() {
    QFETCH(QString, error);
    QFETCH(QString, reason);
    const QString refuse =
        u"raise dbus.exceptions.DBusException('Permission denied', name='%1')"_s.arg(error);
    for (const auto& [method, in] :
         std::initializer_list<std::pair<QString, QString>>{{u"PowerOff"_s, u"b"_s},
                                                            {u"PowerOffWithFlags"_s, u"t"_s},
                                                            {u"Reboot"_s, u"b"_s},
                                                            {u"TerminateSession"_s, u"s"_s},
                                                            {u"LockSession"_s, u"s"_s}}) {
        AddMethod(ManagerInterface, method, in, QString(), refuse);
    }
    LogindActions actions(u"c7"_s);
    for (const unsigned flags : {0U, 1U, 2U, 13U}) {
        QCOMPARE(actions.ExitWindowsEx(flags), reason);
    }
    QCOMPARE(actions.LockWorkStation(), reason);
    QCOMPARE(Calls(), QStringList({u"TerminateSession c7"_s, u"PowerOff false"_s, u"Reboot false"_s,
                                   u"PowerOffWithFlags 16"_s, u"LockSession c7"_s}));
}

void tst_RealLogin::tellsThatTheServiceIsAway() {
    // The bus of the session, on which nobody plays the login service.
    const QString answer =
        LogindActions(u"c7"_s, qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS")).ExitWindowsEx(2);
    QVERIFY2(answer.startsWith(u"The login service is not running. "_s), qPrintable(answer));
}

void tst_RealLogin::tellsThatTheServiceHangs() {
    AddMethod(ManagerInterface, u"LockSession"_s, u"s"_s, QString(),
              u"import time; time.sleep(2)"_s);
    const QString answer = LogindActions(u"c7"_s, {}, 200).LockWorkStation();
    QVERIFY2(answer.startsWith(u"The login service does not answer. "_s), qPrintable(answer));
}

void tst_RealLogin::tellsThatThereIsNoBus() {
    LogindActions actions(u"c7"_s, u"unix:path=/nonexistent/bus"_s);
    for (const QString& answer :
         {actions.LockWorkStation(), actions.ExitWindowsEx(0), actions.ExitWindowsEx(1),
          actions.ExitWindowsEx(2), actions.ExitWindowsEx(13)}) {
        QVERIFY2(answer.startsWith(u"The system bus can't be reached. "_s), qPrintable(answer));
    }
}

QTEST_GUILESS_MAIN(tst_RealLogin)
#include "tst_RealLogin.moc"

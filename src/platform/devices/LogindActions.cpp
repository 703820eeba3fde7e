#include "platform/devices/LogindActions.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QUuid>

#include "platform/devices/OpenPath.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr unsigned Reboot = 2;
constexpr unsigned Force = 4;
constexpr unsigned ShutdownOrPowerOff = 1 | 8;
constexpr qulonglong SkipInhibitors = 1 << 4;

/// A connection of its own for each action: they are rare, and a bus that was away may have come.
class Login {
public:
    Login(const QString& address, int timeout)
        : name_(u"tempolark-"_s + QUuid::createUuid().toString()),
          bus_(address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SystemBus, name_)
                                 : QDBusConnection::connectToBus(address, name_)),
          timeout_(timeout) {}
    ~Login() { QDBusConnection::disconnectFromBus(name_); }
    Q_DISABLE_COPY_MOVE(Login)

    QDBusMessage Ask(const QString& method, const QVariantList& arguments) {
        return Ask(u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, method,
                   arguments);
    }

    QDBusMessage Ask(const QString& object, const QString& interface, const QString& method,
                     const QVariantList& arguments) {
        if (!bus_.isConnected()) {
            return QDBusMessage::createError(bus_.lastError());
        }
        QDBusMessage call =
            QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, object, interface, method);
        call.setArguments(arguments);
        return bus_.call(call, QDBus::Block, timeout_);
    }

    bool IsConnected() const { return bus_.isConnected(); }

private:
    QString name_;
    QDBusConnection bus_;
    int timeout_;
};

bool Failed(const QDBusMessage& reply) {
    return reply.type() != QDBusMessage::ReplyMessage;
}

QString Reason(const Login& login, const QDBusMessage& reply) {
    if (!Failed(reply)) {
        return {};
    }
    QString text = reply.errorMessage().isEmpty() ? reply.errorName() : reply.errorMessage();
    if (!login.IsConnected()) {
        return u"The system bus can't be reached. "_s + text;
    }
    const QDBusError::ErrorType type = QDBusError(reply).type();
    if (type == QDBusError::ServiceUnknown || reply.errorName().endsWith(u".NameHasNoOwner"_s)) {
        return u"The login service is not running. "_s + text;
    }
    if (type == QDBusError::NoReply || type == QDBusError::Timeout) {
        return u"The login service does not answer. "_s + text;
    }
    if (type == QDBusError::AccessDenied ||
        reply.errorName().endsWith(u".InteractiveAuthorizationRequired"_s)) {
        return u"This is not allowed. "_s + text;
    }
    return text;
}

QString Run(Login& login, const QString& method, const QVariantList& arguments) {
    return Reason(login, login.Ask(method, arguments));
}

/// The session of this process, or the reason why it is not known.
struct Session {
    QString Id;
    QString Reason;
};

QDBusMessage AskForId(Login& login, const QString& session) {
    return login.Ask(session, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
                     {u"org.freedesktop.login1.Session"_s, u"Id"_s});
}

/// A desktop that starts programs as services of the user leaves them without a session; then that
/// of the user's screen is meant.
Session OwnSession(Login& login) {
    const auto pid = static_cast<uint>(QCoreApplication::applicationPid());
    const QDBusMessage found = login.Ask(u"GetSessionByPID"_s, {pid});
    const auto path = found.arguments().value(0).value<QDBusObjectPath>();
    if (Failed(found) && !found.errorName().endsWith(u".NoSessionForPID"_s)) {
        return {{}, Reason(login, found)};
    }
    const QDBusMessage id =
        AskForId(login, Failed(found) ? u"/org/freedesktop/login1/session/auto"_s : path.path());
    return {id.arguments().value(0).value<QDBusVariant>().variant().toString(),
            Failed(id) ? Reason(login, Failed(found) ? found : id) : QString()};
}

QString RunOnSession(Login& login, const QString& method, const QString& session) {
    const Session own = session.isEmpty() ? OwnSession(login) : Session{session, {}};
    return own.Reason.isEmpty() ? Run(login, method, {own.Id}) : own.Reason;
}

/// Older services lack the call, or don't know the flag.
QString ForcePowerOff(Login& login) {
    const QDBusMessage reply = login.Ask(u"PowerOffWithFlags"_s, {SkipInhibitors});
    const QDBusError::ErrorType type = QDBusError(reply).type();
    if (Failed(reply) && (type == QDBusError::UnknownMethod || type == QDBusError::InvalidArgs)) {
        return Run(login, u"PowerOff"_s, {false});
    }
    return Reason(login, reply);
}

}  // namespace

LogindActions::LogindActions(QString session, QString address, int timeoutMilliseconds)
    : session_(std::move(session)), address_(std::move(address)), timeout_(timeoutMilliseconds) {}

LogindActions::~LogindActions() {
    pool_.waitForDone();
}

void LogindActions::Begin(const std::function<QString(SystemActions&)>& action,
                          const std::function<void(const QString& reason)>& answer) {
    pool_.start([this, action, answer] {
        const QString reason = action(*this);
        QMetaObject::invokeMethod(
            &home_, [answer, reason] { answer(reason); }, Qt::QueuedConnection);
    });
}

QString LogindActions::ExitWindowsEx(unsigned flags) {
    Login login(address_, timeout_);
    if ((flags & Reboot) != 0) {
        return Run(login, u"Reboot"_s, {false});
    }
    if ((flags & ShutdownOrPowerOff) == 0) {
        return RunOnSession(login, u"TerminateSession"_s, session_);
    }
    return (flags & Force) != 0 ? ForcePowerOff(login) : Run(login, u"PowerOff"_s, {false});
}

QString LogindActions::LockWorkStation() {
    Login login(address_, timeout_);
    return RunOnSession(login, u"LockSession"_s, session_);
}

QString LogindActions::Open(const QString& path, const QString& workingFolder) {
    return OpenPath(path, workingFolder);
}

}  // namespace platform

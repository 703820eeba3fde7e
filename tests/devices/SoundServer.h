#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

/// A sound server of the test's own, with a sink that nobody hears, which may be taken away. Sound
/// of this process and of those it starts goes there, or nowhere.
class SoundServer {
public:
    SoundServer() { qputenv("XDG_RUNTIME_DIR", folder_.path().toUtf8()); }
    ~SoundServer() { End(); }
    Q_DISABLE_COPY_MOVE(SoundServer)

    /// Whether it could be started and answers.
    bool Start() {
        // A bus has room for one server, and there may be another.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        process_.setProcessEnvironment(environment);
        process_.setStandardErrorFile(QProcess::nullDevice());
        process_.start(QStringLiteral("pulseaudio"),
                       {QStringLiteral("-n"), QStringLiteral("--exit-idle-time=-1"),
                        QStringLiteral("--load=module-native-protocol-unix"),
                        QStringLiteral("--load=module-null-sink sink_name=null")});
        return QTest::qWaitFor(Answers, 30'000);
    }

    /// It dies without a word.
    void End() {
        process_.kill();
        process_.waitForFinished();
    }

    /// It stays there and answers nothing.
    void Freeze() const { ::kill(static_cast<pid_t>(process_.processId()), SIGSTOP); }

private:
    static bool Answers() {
        QProcess asker;
        asker.start(QStringLiteral("pactl"), {QStringLiteral("info")});
        return asker.waitForFinished() && asker.exitCode() == 0;
    }

    QTemporaryDir folder_;
    QProcess process_;
};

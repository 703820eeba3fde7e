#include <QApplication>
#include <QDir>
#include <QProcess>
#include <cstdio>
#include <optional>

#include "foundation/Program.h"
#include "platform/AbsentDevices.h"
#include "platform/Accounts.h"
#include "platform/AppFolder.h"
#include "platform/CalendarWatch.h"
#include "platform/FileSettings.h"
#include "platform/LocalFiles.h"
#include "platform/ProfileOrigin.h"
#include "platform/QuitSignals.h"
#include "platform/Services.h"
#include "platform/SystemClock.h"
#include "platform/SystemRandom.h"
#include "platform/TzFolder.h"
#include "platform/TzZoneDatabase.h"
#include "platform/devices/DesktopHelp.h"
#include "platform/devices/LocalOneProgram.h"
#include "platform/devices/LogindActions.h"
#include "platform/devices/QtPlayers.h"
#include "platform/devices/QtVoices.h"
#include "platform/ui/DesktopDialogs.h"
#include "shell/StartOnce.h"
#include "shell/ui/ProgramIcon.h"
#include "shell/ui/frmMain.h"
#include "timezones/ZoneEdition.h"

using namespace Qt::StringLiterals;

namespace {

struct Options {
    QString AppFolder;    ///< empty: the program finds its own
    QString CommandLine;  ///< what is left of the arguments, joined by blanks
    bool QuitWhenPainted = false;
    int ExitCode = -1;  ///< not negative: the program has answered and ends
};

const char* const Usage =
    "Usage: TempolarkCentral [options] [zone name]\n"
    "Shows clocks of the world's time zones.\n\n"
    "  zone name          the zone to begin with, such as \"Tokyo Standard Time\"\n"
    "  --app-folder DIR   the folder of the program's data\n"
    "  --quit-when-painted  end once the first clock has been painted (to measure the start)\n"
    "  --help             this text\n"
    "  --version          the version, and the edition of the zone database\n";

/// Takes the options off; everything else is the command line.
Options ReadOptions(QStringList arguments) {
    Options options;
    QStringList rest;
    arguments.removeFirst();
    while (!arguments.isEmpty()) {
        const QString argument = arguments.takeFirst();
        if (argument == u"--help"_s) {
            std::fputs(Usage, stdout);
            options.ExitCode = 0;
        } else if (argument == u"--version"_s) {
            std::printf("Tempolark " TEMPOLARK_VERSION "\n%s\n",
                        qPrintable(mduTimeZones::EditionText(platform::TzEdition())));
            options.ExitCode = 0;
        } else if (argument == u"--quit-when-painted"_s) {
            options.QuitWhenPainted = true;
        } else if (argument == u"--app-folder"_s && !arguments.value(0).isEmpty()) {
            options.AppFolder = QDir::cleanPath(QDir(arguments.takeFirst()).absolutePath());
        } else if (argument == u"--app-folder"_s) {
            std::fputs("--app-folder wants a folder\n", stderr);
            options.ExitCode = 2;
        } else if (argument.startsWith(u"--"_s)) {
            std::fprintf(stderr, "%s: not an option\n%s", qPrintable(argument), Usage);
            options.ExitCode = 2;
        } else {
            rest += argument;
        }
        if (options.ExitCode >= 0) {
            return options;
        }
    }
    options.CommandLine = rest.join(u' ');
    return options;
}

/// The arguments before any window system is asked for: help and version need none.
QStringList Arguments(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments += QString::fromLocal8Bit(argv[i]);
    }
    return arguments;
}

/// Ends the program when a clock has been painted and its window has been shown.
class FirstPaint final : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == ClockWindowName) {
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        }
        return false;
    }
};

/// The profiles of the cities hold the days of one year and follow the zone database.
class ProfileRenewal {
public:
    ProfileRenewal(const platform::WallClock& clock, const QString& appFolder)
        : clock_(clock),
          tool_(QApplication::applicationDirPath() + u"/tempolark-profiles"_s),
          appFolder_(appFolder) {
        process_.setProcessChannelMode(QProcess::ForwardedChannels);
    }

    /// Every step of the tool is whole: the next start goes on where this one breaks it off.
    ~ProfileRenewal() {
        process_.kill();
        process_.waitForFinished();
    }

    Q_DISABLE_COPY_MOVE(ProfileRenewal)

    /// Waits for the end: the clocks that open now are to find the new days. A slow disk holds them
    /// up for a few seconds at most.
    void Run() {
        constexpr int LongestWait = 5000;
        if (IsDue()) {
            process_.start(tool_, Order());
            process_.waitForFinished(LongestWait);
        }
    }

    /// While clocks run, none of them waits for it.
    void RunBehind() const {
        if (IsDue()) {
            QProcess::startDetached(tool_, Order());
        }
    }

private:
    bool IsDue() const {
        return platform::AreProfilesDue({appFolder_, tool_, {}, clock_.Now().date()});
    }

    // The year begins by this machine's calendar.
    QStringList Order() const {
        return {appFolder_, u"--date"_s, clock_.Now().date().toString(Qt::ISODate)};
    }

    const platform::WallClock& clock_;
    QString tool_;
    QString appFolder_;
    QProcess process_;
};

/// Tells a problem on the error output, if there is one.
void Complain(const QString& problem) {
    if (!problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
}

/// Readies the program folder and claims it for this program, before anything is written there.
/// @return the exit status of a program that is not to go on
std::optional<int> TakeFolder(const QString& folder, const platform::AppFolderPlaces& places,
                              const QString& commandLine,
                              std::optional<platform::LocalOneProgram>& program) {
    const QString problem =
        platform::HoldsOtherFiles(folder, places)
            ? u"The folder %1 holds other files: name a new folder, or an empty one"_s.arg(folder)
            : platform::PrepareAppFolder(folder);
    if (!problem.isEmpty()) {
        Complain(problem);
        return 1;
    }
    program.emplace(folder, platform::LocalOneProgram::SocketFolder());
    return shell::StartOnce(*program, commandLine, Complain);
}

}  // namespace

int main(int argc, char** argv) {
    const Options early = ReadOptions(Arguments(argc, argv));
    if (early.ExitCode >= 0) {
        return early.ExitCode;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Tempolark"_s);
    QApplication::setApplicationVersion(QStringLiteral(TEMPOLARK_VERSION));
    QApplication::setWindowIcon(ProgramIcon());
    QGuiApplication::setDesktopFileName(u"org.tempolark.Tempolark"_s);
    // The toolkit has taken its own options off by now.
    const Options options = ReadOptions(QApplication::arguments());

    const platform::AppFolderPlaces places = platform::FindAppFolderPlaces();
    ModuleState module;
    module.CommandLine = options.CommandLine;
    module.Paths.AppFolder =
        options.AppFolder.isEmpty() ? platform::ChooseAppFolder(places) : options.AppFolder;
    std::optional<platform::LocalOneProgram> program;
    if (const auto status =
            TakeFolder(module.Paths.AppFolder, places, options.CommandLine, program)) {
        return *status;
    }
    const QString problem = platform::CompleteAppFolder(module.Paths.AppFolder, places);
    if (!problem.isEmpty()) {
        Complain(problem);
        return 1;
    }

    platform::SystemClock clock;
    platform::TzZoneDatabase zones(clock);
    platform::LocalFiles files;
    platform::UnixAccount user;
    platform::FileSettings settings(module.Paths.AppFolder + u"/Settings.ini"_s);
    platform::LogindActions actions(qEnvironmentVariable("XDG_SESSION_ID"));
    platform::QtVoices voices(QApplication::applicationDirPath() + u"/tempolark-voice"_s);
    platform::QtPlayers players;
    platform::QtSoundDevices sound;
    platform::DesktopDialogs dialogs;
    platform::NoTray tray;
    platform::DesktopHelp help(files);
    platform::SystemRandom random;
    const platform::Services services{.Clock = clock,
                                      .Zones = zones,
                                      .FileSystem = files,
                                      .User = user,
                                      .Settings = settings,
                                      .Actions = actions,
                                      .Speech = voices,
                                      .Media = players,
                                      .Sound = sound,
                                      .Dialog = dialogs,
                                      .TrayIcon = tray,
                                      .Help = help,
                                      .Random = random};
    Forms windows;

    ProfileRenewal profiles(clock, module.Paths.AppFolder);
    profiles.Run();
    const platform::CalendarWatch calendar(clock, [&profiles] { profiles.RunBehind(); });

    frmMain shell({services, module, windows});
    dialogs.SetOwner(&shell);
    if (!shell.Load()) {
        return 1;
    }
    Complain(shell.NoticeOf(options.CommandLine));
    Complain(program->Listen([&shell](const QString& commandLine) {
        shell.TakeOver(commandLine);
        Complain(shell.NoticeOf(commandLine));
    }));
    FirstPaint firstPaint;
    if (options.QuitWhenPainted) {
        application.installEventFilter(&firstPaint);
    }
    const platform::QuitSignals quitSignals([&shell] { shell.Quit(); });
    return QApplication::exec();
}

#include <QApplication>
#include <QDir>

#include "ctl/CommandLine.h"
#include "ctl/ScriptMachine.h"
#include "foundation/SetupPaths.h"
#include "platform/AppFolder.h"

using namespace Qt::StringLiterals;

namespace {

QStringList ArgumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int index = 1; index < argc; ++index) {
        arguments += QString::fromLocal8Bit(argv[index]);
    }
    return arguments;
}

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv, bool drawsPictures) {
    if (!drawsPictures) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

QString AppFolderOf(const ctl::CommandLine& line, const platform::AppFolderPlaces& places) {
    if (line.Global.AppFolder) {
        return QDir::cleanPath(QDir(*line.Global.AppFolder).absolutePath());
    }
    return line.Chosen->Folder == ctl::FolderNeed::None ? places.ExecutableFolder
                                                        : platform::ChooseAppFolder(places);
}

// The user's own folder is filled for whoever looks into it, a named one only where the program's
// start needs what is in it.
QString FolderProblem(const ctl::CommandLine& line, const QString& folder,
                      const platform::AppFolderPlaces& places) {
    const ctl::FolderNeed least =
        line.Global.AppFolder ? ctl::FolderNeed::Starts : ctl::FolderNeed::Reads;
    if (line.Chosen->Folder < least) {
        return {};
    }
    const QString problem = platform::PrepareAppFolder(folder);
    return problem.isEmpty() ? platform::FillAppFolder(folder, places) : problem;
}

int Run(const ctl::CommandLine& line) {
    const platform::AppFolderPlaces places = platform::FindAppFolderPlaces();
    ModuleState state;
    state.Paths.AppFolder = AppFolderOf(line, places);
    const QString problem = FolderProblem(line, state.Paths.AppFolder, places);
    if (!problem.isEmpty()) {
        ctl::Complain(problem);
        return ctl::OperationFailed;
    }
    mduMain::NameProgramFolders(state.Paths);
    const ctl::ScriptMachine machine(line.Global, state.Paths.AppFolder);
    ctl::Context context{line.Global, machine.Services(), state, line.Arguments, line.Options};
    return line.Chosen->Run(context);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<ctl::Command> commands = ctl::AllCommands();
    const ctl::CommandLine line = ctl::ParseCommandLine(ArgumentsOf(argc, argv), commands);
    if (!line.Answer.isEmpty()) {
        ctl::PrintText(line.Answer);
        return ctl::Done;
    }
    if (line.Chosen == nullptr) {
        ctl::Complain(line.Problem);
        return ctl::WrongArguments;
    }
    const auto application = MakeApplication(argc, argv, line.Chosen->DrawsPictures);
    const int status = Run(line);
    if (status == ctl::WrongArguments) {
        ctl::Complain(ctl::UsageOf(*line.Chosen));
    }
    return status;
}

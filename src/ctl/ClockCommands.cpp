#include <QJsonObject>
#include <memory>

#include "clock/ui/frmTempolark.h"
#include "ctl/Command.h"
#include "ctl/ReadOnlyFiles.h"
#include "ctl/ReadOnlySettings.h"
#include "ctl/SizeText.h"
#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

/// A clock of that size with that file, after its first tick, its redraw and some normal ticks.
std::unique_ptr<frmTempolark> DrawnClock(const Program& program, const QString& file,
                                         const QSize& size, int normalTicks) {
    program.Module.Paths.CurrentPropertyFile = file;
    auto clock = std::make_unique<frmTempolark>(program, nullptr, nullptr);
    clock->setWindowFlag(Qt::FramelessWindowHint);
    clock->setFixedSize(size);
    clock->ShowMe(mduLib::FileBaseName(file, false), {});
    for (int tick = 0; tick < normalTicks + 2; ++tick) {
        clock->Tick();
        clock->FinishMotions();  // a tick is over when what it set in motion has come to rest
    }
    return clock;
}

void PrintPicture(const QSize& size, const QString& mode) {
    PrintJson(QJsonDocument(
        QJsonObject{{u"width"_s, size.width()}, {u"height"_s, size.height()}, {u"mode"_s, mode}}));
}

int Render(Context& context) {
    const QString file = context.Arguments[0];
    const std::optional<QSize> size = ReadSize(context.Option(u"--size"_s));
    bool ticksAreNumber = true;
    const int ticks =
        context.HasOption(u"--ticks"_s) ? context.Option(u"--ticks"_s).toInt(&ticksAreNumber) : 1;
    if (!size || !ticksAreNumber || ticks < 0) {
        return WrongArguments;
    }
    ClockProperties properties;
    if (!mduLib::MayRewrite(context.Services.FileSystem, file) ||
        !mduLib::ReadPropertyFile(context.Services.FileSystem, file, properties)) {
        Complain(file + u" can't be read as a property file"_s);
        PrintPicture(*size, u"0"_s);
        return OperationFailed;
    }
    Forms windows;
    ReadOnlyFiles files(context.Services.FileSystem);
    ReadOnlySettings settings(context.Services.Settings);
    const platform::Services services = context.Services.With(files, settings);
    const Program program{services, context.State, windows};
    const std::unique_ptr<frmTempolark> clock = DrawnClock(program, file, *size, ticks);
    const QImage image = clock->SeenPicture();
    const bool saved = image.save(context.Arguments[1], "PNG");
    if (!saved) {
        Complain(context.Arguments[1] + u" can't be written"_s);
    }
    PrintPicture(image.size(), clock->Data().Tag.Text());
    return saved ? Done : OperationFailed;
}

}  // namespace

std::vector<Command> ClockCommands() {
    return {{u"clock"_s,
             u"render"_s,
             u"FILE PNG --size WxH [--ticks N]"_s,
             2,
             2,
             {u"--size="_s, u"--ticks="_s},
             Render,
             true}};
}

}  // namespace ctl

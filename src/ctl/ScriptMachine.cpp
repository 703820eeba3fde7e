#include "ctl/ScriptMachine.h"

#include "ctl/Command.h"
#include "platform/SystemClock.h"
#include "platform/TzFolder.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

QDateTime PresentTimeIn(const QTimeZone& zone) {
    const platform::SystemClock machine;
    const QDateTime gmt = machine.Now().addSecs(-machine.OffsetFromGmt());
    return gmt.addSecs(zone.offsetFromUtc(gmt));
}

// A moment or a zone of the script's choice makes a clock that stands still.
std::unique_ptr<platform::WallClock> MakeClock(const GlobalOptions& options) {
    const QTimeZone zone = platform::TzZone(options.LocalZone);
    if (options.Utc) {
        auto clock = std::make_unique<platform::SimulatedClock>(*options.Utc, zone);
        clock->SetInstant(*options.Utc);
        return clock;
    }
    if (!options.Now && options.LocalZone.isEmpty()) {
        return std::make_unique<platform::SystemClock>();
    }
    return std::make_unique<platform::SimulatedClock>(options.Now.value_or(PresentTimeIn(zone)),
                                                      zone);
}

std::unique_ptr<platform::Account> MakeAccount(const GlobalOptions& options) {
    if (options.User) {
        return std::make_unique<platform::NamedAccount>(*options.User);
    }
    return std::make_unique<platform::UnixAccount>();
}

}  // namespace

int ConsoleDialogs::MessageBox(const QString& text, int flags, const QString& title) {
    constexpr int YesAndNo = 4;
    constexpr int AnswerOk = 1;
    constexpr int AnswerNo = 7;
    Complain(title + u": "_s + text);
    return (flags & YesAndNo) != 0 ? AnswerNo : AnswerOk;
}

ScriptMachine::ScriptMachine(const GlobalOptions& options, const QString& appFolder)
    : clock_(MakeClock(options)),
      zones_(*clock_, options.LocalZone),
      user_(MakeAccount(options)),
      settings_(appFolder + u"/Settings.ini"_s),
      random_(options.Seed),
      services_(devices_.Beside(*clock_, zones_, files_, *user_, settings_, dialogs_, random_)) {}

}  // namespace ctl

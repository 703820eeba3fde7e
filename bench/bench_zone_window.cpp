#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>

#include "Desk.h"
#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;

/// The window of zones with 550 rows: the database and enough city profiles of the stock kind. It
/// must open in 150 ms and follow a key press in 16.
namespace {

constexpr int Rows = 550;

/// Nobody: the shell's part in naming the window.
struct Nameless final : IForm {
    QString Name() const override { return u"frmMain"_s; }
    QString Caption() const override { return u"Tempolark Central"_s; }
    int hwnd() const override { return 1; }
    int WindowState() const override { return 0; }
    void SetWindowState(int) override {}
    bool IsEnabled() const override { return true; }
    void EnableWindow(bool) override {}
    void Show() override {}
    void SetFocus() override {}
    void Unload() override {}
};

struct ZoneDesk : Desk {
    Program TheProgram{Services, Module, Windows};
    Nameless Shell;
    QByteArray DefaultFile = Files.Read(Module.Paths.ZoneDefaultFile()).value_or(QByteArray());

    ZoneDesk() {
        QDir().mkdir(Folder.filePath(u"Timezones"_s));
        int zones = 0;
        while (Zones.SubkeyName(zones)) {
            ++zones;
        }
        for (int number = 0; number < Rows - zones; ++number) {
            WriteProfile(number);
        }
    }

    /// A profile is the default file with the values of its city.
    void WriteProfile(int number) {
        const int minutes = number % 27 * 60 - 840;
        const QString text =
            u"Time Zone:Time Zone Standard Name=City %1\r\n"
            "Time Zone:Time Zone Standard Start Time=25/10/2026 2:00:00\r\n"
            "Time Zone:Time Zone Standard GMT (Minutes)=%2\r\n"
            "Time Zone:Time Zone Daylight Name=City %1 Daylight Time\r\n"
            "Time Zone:Time Zone Daylight Start Time=29/03/2026 1:00:00\r\n"
            "Time Zone:Time Zone Daylight GMT (Minutes)=%3\r\n"
            "Zone:Latitude=%4\r\nZone:Longitude=%5\r\nZone:Country=Country %6\r\n"_s.arg(number)
                .arg(minutes)
                .arg(minutes - 60)
                .arg(number % 120 - 50)
                .arg(-minutes / 4)
                .arg(number % 190);
        Files.Write(Folder.filePath(u"Timezones/City %1.ini"_s.arg(number)),
                    text.toUtf8() + DefaultFile);
    }

    std::unique_ptr<frmTimeZones> Open() {
        auto window = std::make_unique<frmTimeZones>(TheProgram, nullptr);
        window->resize(900, 700);
        window->SetSource(mduTimeZones::SourceMode::Both);
        window->ShowMe(Shell, nullptr, 0, 0);
        QCoreApplication::processEvents();
        window->repaint();
        return window;
    }
};

/// From nothing to a painted window, with a database that has read no zone yet.
void OpenFirst(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto desk = std::make_unique<ZoneDesk>();
        state.ResumeTiming();
        auto window = desk->Open();
        state.PauseTiming();
        state.counters["rows"] = window->List().Count();
        window.reset();
        desk.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenFirst)->Unit(benchmark::kMillisecond);

void OpenAgain(benchmark::State& state) {
    ZoneDesk desk;
    desk.Open();
    for (auto _ : state) {
        auto window = desk.Open();
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenAgain)->Unit(benchmark::kMillisecond);

/// One key typed into the search field, to the painted list and map.
void NarrowByAKey(benchmark::State& state) {
    ZoneDesk desk;
    const auto window = desk.Open();
    auto* field = window->findChild<QLineEdit*>(u"txtSearch"_s);
    const QString typed = u"standard"_s;
    qsizetype length = 0;
    for (auto _ : state) {
        length = length % typed.size() + 1;
        field->setText(typed.left(length));
        QCoreApplication::processEvents();
        window->repaint();
    }
}
BENCHMARK(NarrowByAKey)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

#include "timers/ActionList.h"

#include <algorithm>

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "platform/Files.h"
#include "timers/SystemActions.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int FirstProgram = 8;
constexpr int MostEntries = 11;
constexpr int ActionTimeEntries = 12;
constexpr int MinutesBefore = 6;
constexpr int LeastActionTime = -1;

}  // namespace

void ActionList::FillActionMenu() {
    entries_.clear();
    for (const QLatin1StringView text :
         {ActionText::None, ActionText::LogOff, ActionText::NormalShutdown, ActionText::Reboot,
          ActionText::ForcedShutdown, ActionText::LockWorkstation, "-"_L1, "More"_L1}) {
        entries_.push_back({QString(text), QString(text)});
    }
    LoadActionList();
}

void ActionList::LoadActionList() {
    const auto content = context_.Services.FileSystem.Read(context_.Module.Paths.ActionFile);
    for (const QString& line : mduLib::FileLines(content.value_or(QByteArray()))) {
        for (const QString& piece : line.trimmed().split(u',', Qt::SkipEmptyParts)) {
            Insert(mduLib::ToNativePath(piece));
        }
    }
}

void ActionList::AddActionProgram(const QString& path) {
    if (Insert(mduLib::ToNativePath(path))) {
        Save();
    }
}

// The newest program, entry 8, is not compared.
bool ActionList::Insert(const QString& program) {
    for (int number = Count() - 1; number > FirstProgram; --number) {
        if (Entry(number).Value == program) {
            return false;
        }
    }
    if (Count() < MostEntries) {
        entries_.emplace_back();
    }
    for (int number = Count() - 1; number > FirstProgram; --number) {
        Entry(number) = Entry(number - 1);
    }
    Entry(FirstProgram) = {program, program};
    Entry(Count()) = {u"More"_s, u"More"_s};
    return true;
}

void ActionList::Save() {
    QString text;
    for (int number = FirstProgram; number < Count(); ++number) {
        text += mduLib::ToStoredPath(Entry(number).Value) + u',';
    }
    mduLib::WriteTextFile(context_.Services.FileSystem, text, context_.Module.Paths.ActionFile);
}

std::vector<int> ActionTimes(int minutesLeft) {
    std::vector<int> minutes(ActionTimeEntries);
    int next = std::max(MinutesBefore - minutesLeft, LeastActionTime);
    for (int& minute : minutes) {
        minute = next++;
    }
    return minutes;
}

}  // namespace timers

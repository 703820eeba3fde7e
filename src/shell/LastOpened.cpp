#include "shell/LastOpened.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int ListUpperBound = 30;
constexpr int MenuLimit = 15;

}  // namespace

QString StripCentralPrefix(const QString& name) {
    const QString prefix = u"Tempolark Central "_s;
    return name.contains(prefix) ? name.sliced(prefix.size()) : name;
}

LastOpened::LastOpened() {
    openedList_.Resize(ListUpperBound);
}

void LastOpened::LoadOpenedForms(const platform::Files& files, const QString& path) {
    // A shorter file must leave nothing of a longer list behind; a file that is not there, all.
    if (files.Exists(path)) {
        for (int row = 1; row <= openedList_.UpperBound(); ++row) {
            openedList_[row] = {};
        }
    }
    mduLib::ReadPropertyFile(files, path, openedList_);
}

bool LastOpened::SaveOpenedForms(platform::Files& files, const QString& path) const {
    return mduLib::RewritePropertyFile(files, openedList_, path);
}

void LastOpened::PushLastOpened(const QString& fullName) {
    const QString name = StripCentralPrefix(fullName);
    const auto entry = [this](int index) -> QString& { return openedList_[index].Name; };
    int pos = 0;
    for (int i = 1; i <= openedList_.UpperBound() - 1; ++i) {
        if (entry(i) == name) {
            pos = i;
            break;
        }
        if (!entry(i).trimmed().isEmpty()) {
            pos = i + 1;
        }
    }
    for (int i = pos; i >= 2; --i) {
        entry(i) = std::exchange(entry(i - 1), QString());
    }
    const bool firstTaken = !entry(1).isEmpty() && entry(1) != name && entry(1) != u"None"_s;
    entry(firstTaken ? 2 : 1) = name;
}

void LastOpened::FillLastOpenedMenu(MenuArray& fileItems, const platform::Files& files,
                                    const PathTable& paths) const {
    int shown = 0;
    static_assert(MenuLimit < ListUpperBound);  // the list has as many rows, and never shrinks
    for (int i = 1; i <= MenuLimit; ++i) {
        const QString& name = openedList_[i].Name;
        if (name.isEmpty() ||
            !mduLib::FileExists(files, paths.ZoneFileFolder + mduLib::AddIniExtension(name))) {
            continue;
        }
        fileItems.Load(++shown) = {name, name, true, true, false};
    }
    if (shown == 0) {
        fileItems(1) = {u"None"_s, u"None"_s, true, true, false};
        fileItems.UnloadAbove(1);
        return;
    }
    fileItems.Load(shown + 1) = {u"All"_s, {}, true, true, false};
    // What a longer menu left is no clock of "All" any more.
    fileItems.UnloadAbove(shown + 1);
}

}  // namespace shell

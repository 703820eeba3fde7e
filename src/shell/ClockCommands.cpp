#include "shell/ClockCommands.h"

#include <algorithm>

#include "foundation/Numbers.h"
#include "foundation/OpenClocks.h"
#include "shell/OpenedMenu.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

using HandleList = std::vector<int>;

/// The handles of all windows. Any act on a window may close others and shorten the list, so that
/// an index tells nothing later on.
HandleList HandlesOf(const Forms& windows) {
    HandleList handles;
    for (int i = 0; i < windows.Count(); ++i) {
        handles.push_back(windows[i].hwnd());
    }
    return handles;
}

/// Every window that is still there when its turn comes.
template <typename Do>
void ForEachOf(const HandleList& handles, const Forms& windows, const Do& act) {
    for (const int handle : handles) {
        if (IForm* window = windows.Find(handle)) {
            act(*window);
        }
    }
}

/// Every clock, in order.
template <typename Do>
void ForEachClock(const Forms& windows, const Do& act) {
    ForEachOf(HandlesOf(windows), windows, [&](IForm& window) {
        if (window.Name() == ClockWindowName) {
            act(window);
        }
    });
}

/// The windows behind the shell, the first.
HandleList ChildHandles(const Forms& windows) {
    HandleList handles = HandlesOf(windows);
    handles.erase(handles.begin(), handles.begin() + (handles.empty() ? 0 : 1));
    return handles;
}

template <typename Do>
void ForEachChild(const Forms& windows, const Do& act) {
    ForEachOf(ChildHandles(windows), windows, [&](IForm& window) {
        if (IsArrangeableChild(window)) {
            act(window);
        }
    });
}

/// The handle that a menu's Tag names; 0 for all clocks.
int TargetHandle(const QString& target) {
    if (!mduAPILib::IsNumeric(target)) {
        return 0;
    }
    return std::max(0, mduAPILib::IntegerValue(target));
}

auto Sends(int message, int wParam) {
    return [=](const Forms& windows, const QString& target) {
        SendToClock(windows, target, message, wParam);
    };
}

auto Enables(int state) {
    return
        [=](const Forms& windows, const QString& target) { EnableClock(windows, target, state); };
}

}  // namespace

void SendMessageA(IForm& window, int message, int wParam) {
    if (message == WindowMessage::Close) {
        window.Unload();
    } else if (message == WindowMessage::SystemCommand) {
        switch (wParam) {
            case WindowMessage::Maximise:
                window.SetWindowState(2);
                break;
            case WindowMessage::Minimise:
                window.SetWindowState(1);
                break;
            case WindowMessage::Restore:
                window.SetWindowState(0);
                break;
            default:
                break;
        }
    }
}

void SendToAllClocks(const Forms& windows, int message, int wParam) {
    ForEachClock(windows, [=](IForm& window) { SendMessageA(window, message, wParam); });
}

void SendToClock(const Forms& windows, const QString& target, int message, int wParam) {
    const int handle = TargetHandle(target);
    if (handle == 0) {
        SendToAllClocks(windows, message, wParam);
    } else if (IForm* window = windows.Find(handle)) {
        SendMessageA(*window, message, wParam);
    }
}

void EnableAllClocks(const Forms& windows, int state) {
    ForEachClock(windows, [state](IForm& window) { window.EnableWindow(state != 0); });
}

void EnableClock(const Forms& windows, const QString& target, int state) {
    const int handle = TargetHandle(target);
    if (handle == 0) {
        EnableAllClocks(windows, state);
    } else if (IForm* window = windows.Find(handle)) {
        window->EnableWindow(state != 0);
    }
}

const std::vector<OpenedCommand>& OpenedCommands() {
    using namespace WindowMessage;
    static const std::vector<OpenedCommand> commands = {
        {u"Close"_s, StyleFilter::None, Sends(Close, 0)},
        {u"Disable"_s, WindowStyle::Disabled, Enables(0)},
        {u"Enable"_s, StyleFilter::CanBeEnabled, Enables(-1)},
        {u"Maximize"_s, WindowStyle::Maximised, Sends(SystemCommand, Maximise)},
        {u"Minimize"_s, WindowStyle::Minimised, Sends(SystemCommand, Minimise)},
        {u"Restore"_s, StyleFilter::CanBeRestored, Sends(SystemCommand, Restore)},
        {u"Auto Start"_s, StyleFilter::None, nullptr},
    };
    return commands;
}

void BroadcastToClocks(const Forms& windows, Broadcast kind, int index, const QString& tag,
                       const QString& caption) {
    ForEachClock(windows, [&](IForm& window) {
        IClock* clock = window.AsClock();
        if (clock == nullptr) {
            return;
        }
        switch (kind) {
            case Broadcast::Clocks:
                clock->SetClocks(index);
                break;
            case Broadcast::ClockStyles:
                clock->SetClockStyle(tag);
                break;
            case Broadcast::ClockColours:
                clock->SetWindowBackColour(tag, caption);
                break;
            case Broadcast::SaveSettings:
                clock->SaveCurrentStyle();
                break;
        }
    });
}

void ApplyStyleToClocks(const Forms& windows, const QString& stylesFolder,
                        const QStringList& styleFiles, int index) {
    if (index >= 0 && index < styleFiles.size()) {
        BroadcastToClocks(windows, Broadcast::ClockStyles, index, stylesFolder + styleFiles[index],
                          {});
    }
}

void SyncClockBackColours(const Forms& windows, int shellColour) {
    ForEachClock(windows, [shellColour](IForm& window) {
        IClock* clock = window.AsClock();
        if (clock != nullptr && clock->DrawStyle() == 1) {
            clock->SetBackColor(shellColour);
            clock->Refresh();
        }
    });
}

bool IsArrangeableChild(const IForm& window) {
    return window.Name() != u"frmCalendar"_s && window.Name() != u"frmCalculator"_s;
}

void MaximiseAllChildren(const Forms& windows, IForm& shellWindow) {
    shellWindow.SetWindowState(2);
    ForEachChild(windows, [](IForm& window) { window.SetWindowState(2); });
}

void RestoreAllChildren(const Forms& windows) {
    ForEachChild(windows, [](IForm& window) {
        window.SetWindowState(0);
        window.SetFocus();
        if (IClock* clock = window.AsClock()) {
            clock->LayOutAgain();
        }
    });
}

void MinimiseAllChildren(const Forms& windows) {
    ForEachChild(windows, [](IForm& window) { window.SetWindowState(1); });
}

bool CloseAllChildren(const Forms& windows) {
    HandleList handles = ChildHandles(windows);
    std::reverse(handles.begin(), handles.end());
    ForEachOf(handles, windows, [](IForm& window) { window.Unload(); });
    bool allGone = true;
    ForEachClock(windows, [&allGone](IForm&) { allGone = false; });
    return allGone;
}

void CloseClocksOf(const Forms& windows, const QString& caption) {
    ForEachClock(windows, [&](IForm& window) {
        if (window.Caption() == caption) {
            window.Unload();
        }
    });
}

bool ActivateWindowByHandle(const Forms& windows, int handle) {
    for (int i = 1; i < windows.Count(); ++i) {
        if (windows[i].hwnd() == handle) {
            mduLib::BringToFront(windows[i]);
            return true;
        }
    }
    return false;
}

}  // namespace shell

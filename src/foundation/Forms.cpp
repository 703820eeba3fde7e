#include "foundation/Forms.h"

std::uint32_t IForm::Style() const {
    std::uint32_t style = IsEnabled() ? 0 : WindowStyle::Disabled;
    if (WindowState() == 1) {
        style |= WindowStyle::Minimised;
    } else if (WindowState() == 2) {
        style |= WindowStyle::Maximised;
    }
    return style;
}

IForm* Forms::Find(int handle) const {
    for (IForm* window : windows_) {
        if (window->hwnd() == handle) {
            return window;
        }
    }
    return nullptr;
}

void TellPropertyWindows(const Forms& windows, const QString& file) {
    for (int i = 0; i < windows.Count(); ++i) {
        IPropertyWindow* window = windows[i].AsPropertyWindow();
        if (window != nullptr && window->PropertyFile() == file) {
            window->SetPropertyChanged(true);
        }
    }
}

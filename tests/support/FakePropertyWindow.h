#pragma once

#include "support/FakeForms.h"

/// A window that edits a file, as those see it who save that file.
class FakePropertyWindow final : public RecordingForm<IForm>, public IPropertyWindow {
public:
    FakePropertyWindow(Forms& windows, const QString& file, QStringList& log)
        : RecordingForm(windows, QStringLiteral("frmProperties"), QStringLiteral("Properties"),
                        log),
          file_(file) {}

    IPropertyWindow* AsPropertyWindow() override { return this; }
    QString PropertyFile() const override { return file_; }
    void SetPropertyChanged(bool state) override {
        Note(state ? QStringLiteral("changed") : QStringLiteral("not changed"));
    }

private:
    QString file_;
};

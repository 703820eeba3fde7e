#pragma once

#include <QStringList>
#include <functional>

#include "foundation/ClockProperty.h"
#include "foundation/Forms.h"

/// A window that writes down what is done to it. Closed, it leaves the list of windows.
template <typename Base>
class RecordingForm : public Base {
public:
    RecordingForm(Forms& windows, const QString& name, const QString& caption, QStringList& log)
        : windows_(windows),
          name_(name),
          caption_(caption),
          log_(log),
          handle_(windows.NewHandle()) {
        windows_.Add(*this);
    }
    ~RecordingForm() override { windows_.Remove(*this); }
    Q_DISABLE_COPY_MOVE(RecordingForm)

    int State = 0;
    bool Enabled = true;
    bool RefusesToClose = false;

    QString Name() const override { return name_; }
    QString Caption() const override { return caption_; }
    int hwnd() const override { return handle_; }
    int WindowState() const override { return State; }
    void SetWindowState(int state) override {
        State = state;
        Note(QStringLiteral("state %1").arg(state));
    }
    bool IsEnabled() const override { return Enabled; }
    void EnableWindow(bool enabled) override {
        Enabled = enabled;
        Note(enabled ? QStringLiteral("enable") : QStringLiteral("disable"));
    }
    void Show() override { Note(QStringLiteral("show")); }
    void SetFocus() override { Note(QStringLiteral("focus")); }
    void Unload() override {
        Note(QStringLiteral("close"));
        if (!RefusesToClose) {
            windows_.Remove(*this);
        }
    }

protected:
    void Note(const QString& what) { log_ += caption_ + QLatin1String(": ") + what; }
    void SetCaption(const QString& caption) { caption_ = caption; }

private:
    Forms& windows_;
    QString name_, caption_;
    QStringList& log_;
    int handle_;
};

using FakeForm = RecordingForm<IForm>;

/// The same as a clock.
class FakeClock : public RecordingForm<IClock> {
public:
    FakeClock(Forms& windows, const QString& caption, QStringList& log)
        : RecordingForm(windows, ClockWindowName, caption, log) {}

    bool Launches = true;
    int Drawing = 0;
    int Colour = 0;

    bool ShowMeMDIChild(const QString& zoneName) override {
        SetCaption(zoneName);
        Note(QStringLiteral("launch"));
        return Launches;
    }
    void SetClocks(int mode) override { Note(QStringLiteral("clocks %1").arg(mode)); }
    void SetClockStyle(const QString& file) override { Note(QLatin1String("style ") + file); }
    void SetWindowBackColour(const QString& value, const QString& caption) override {
        Note(QStringLiteral("colour %1 %2").arg(value, caption));
    }
    void SaveCurrentStyle() override { Note(QStringLiteral("save")); }
    std::function<void(const QString& file)> OnRefreshForm;
    void RefreshForm(const QString& file) override {
        Note(QStringLiteral("refresh form"));
        if (OnRefreshForm) {
            OnRefreshForm(file);
        }
    }
    void Refresh() override { Note(QStringLiteral("refresh")); }
    void LayOutAgain() override { Note(QStringLiteral("lay out")); }
    QString File;
    QString IniFile() const override { return File; }
    std::function<void()> OnSetProperty;
    void SetProperty() override {
        Note(QStringLiteral("set property"));
        if (OnSetProperty) {
            OnSetProperty();
        }
    }
    void RefreshDefaultTimeZoneDetails(const QString& zone) override {
        Note(QLatin1String("zone details ") + zone);
    }
    void PreviewProperties(const ClockProperties& values) override {
        QStringList pairs;
        for (int row = 1; row <= values.UpperBound(); ++row) {
            if (!values[row].Name.isEmpty()) {
                pairs += values[row].Name + QLatin1Char('=') + values[row].Value;
            }
        }
        Note(QLatin1String("preview ") + pairs.join(QLatin1Char(';')));
    }
    int DrawStyle() const override { return Drawing; }
    void SetBackColor(int colour) override { Colour = colour; }
};

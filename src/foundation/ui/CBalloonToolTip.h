#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <cstdint>
#include <functional>
#include <memory>

#include "foundation/ui/BalloonWindow.h"
#include "platform/WallClock.h"

/// A balloon that points at a place of its owner, with a title, an icon and a text:
///
///     CBalloonToolTip tip(services.Clock);
///     tip.ShowBalloonInfo(this, 1500, 1500, u"Saved"_s, u"Two zones have a file now."_s);
///
/// The properties take effect with `CreateToolTip`. A tip on demand appears at once when `Show` is
/// called. Any other appears when the pointer has rested on the owner for `DelayTime`, and goes
/// when it leaves or a button is pressed. Both go after `VisibleTime`, on a click, and when the
/// owner hides or its window is left. The window belongs to its owner and lives no longer.
class CBalloonToolTip final : public QObject {
public:
    enum ToolIcon { NoIcon = 0, Information = 1, Warning = 2, Error = 3 };
    static constexpr int Unset = -1;  ///< a colour of the desktop's own

    /// A colour in a shade that can be read on a tip of the desktop's colours, for `ForeColor`.
    /// `Unset` stays as it is.
    static int ReadableColor(int colour);

    explicit CBalloonToolTip(platform::WallClock& clock);
    ~CBalloonToolTip() override;

    /// Kept for those who ask; no tip has such a box.
    bool CloseBox() const { return closeBox_; }
    void SetCloseBox(bool on) { closeBox_ = on; }
    bool Shown() const { return shown_; }  ///< a tip is on the screen
    void SetShown(bool shown);  ///< false takes the tip away; true shows nothing by itself
    /// Longest tip text, in characters; the rest is cut off. 4096 to begin with.
    int MaxLength() const { return maxLength_; }
    void SetMaxLength(int characters) { maxLength_ = characters; }
    /// Milliseconds until a tip that is shown goes; 0 is without end. 5000 to begin with, 10000
    /// after a `...Setup`.
    int VisibleTime() const { return visibleTime_; }
    void SetVisibleTime(int milliseconds) { visibleTime_ = milliseconds; }
    /// Milliseconds that the pointer must rest. 100 to begin with, 500 after a `...Setup`.
    int DelayTime() const { return delayTime_; }
    void SetDelayTime(int milliseconds) { delayTime_ = milliseconds; }
    int Icon() const { return icon_; }
    void SetIcon(int icon) { icon_ = icon; }
    /// The colour of the text, red in the low byte. `Unset` is one that can be read on `BackColor`,
    /// or the desktop's own where that is unset, too.
    int ForeColor() const { return foreColor_; }
    void SetForeColor(int colour) { foreColor_ = colour; }
    const QString& Title() const { return title_; }
    void SetTitle(const QString& title) { title_ = title; }
    /// Whether the tip waits for `Show`; else it comes by itself when the pointer rests on the
    /// owner.
    bool PopupOnDemand() const { return popupOnDemand_; }
    void SetPopupOnDemand(bool on) { popupOnDemand_ = on; }
    int BackColor() const { return backColor_; }
    void SetBackColor(int colour) { backColor_ = colour; }
    const QString& TipText() const { return tipText_; }
    void SetTipText(const QString& text) { tipText_ = text; }
    int Style() const { return style_; }  ///< 1 is a balloon
    void SetStyle(int style) { style_ = style; }
    bool Centered() const { return centered_; }  ///< the body stands centred on its tool
    void SetCentered(bool on) { centered_ = on; }
    bool Beside() const { return beside_; }  ///< stands at the side of its tool; wins over Centered
    void SetBeside(bool on) { beside_ = on; }

    /// Called whenever a tip that was on the screen has gone.
    std::function<void()> Closed;

    /// Makes the window for @p ownerWindow; one that exists is replaced. @p ok tells whether it
    /// could be made.
    void CreateToolTip(QWidget* ownerWindow, bool& ok);

    /// Shows the tip at a point of the owner, in pixels; nothing happens before `CreateToolTip`.
    /// With @p tool the balloon keeps clear of a rectangle of that size whose left top is the
    /// point.
    void Show(int x, int y, const QSize& tool = QSize(0, 0));
    /// Takes the tip off the screen, and gives up one that was still to come. The window is kept.
    void Destroy();

    /// Makes the tip one on demand, and calls @p show when `DelayTime` has passed, unless the tip
    /// is destroyed or its owner hidden before.
    void AfterDelay(std::function<void()> show);

    /// These set all properties up and make the window, colours as in `BackColor`.
    void BalloonInfoSetup(QWidget* owner, const QString& title, const QString& text,
                          int backColor = Unset, int foreColor = Unset);
    void BalloonWarningSetup(QWidget* owner, const QString& title, const QString& text,
                             int backColor = Unset, int foreColor = Unset);

    /// The same, shown at a point of the owner in twips.
    void ShowBalloonInfo(QWidget* owner, double x, double y, const QString& title,
                         const QString& text, int backColor = Unset, int foreColor = Unset);
    void ShowBalloonWarning(QWidget* owner, double x, double y, const QString& title,
                            const QString& text, int backColor = Unset, int foreColor = Unset);
    /// Shows the stored text again, for a tip whose place has moved.
    void ReloadBalloonInfo(QWidget* owner, double x, double y);

    /// An error in red at a point in pixels. Unlike the others it leaves times and stand as they
    /// are.
    void ShowBalloonError(QWidget* owner, int x, int y, const QString& title, const QString& text,
                          int backColor = Unset);

    /// How the tool follows the pointer: 35 centred and on demand, 19 centred, 289 on demand, 17
    /// neither.
    int ToolFlags() const;

    /// Where the tip was shown last, as x + y * 65536 in pixels of the screen.
    std::int32_t TrackPosition() const { return trackPosition_; }

    /// The window; null before `CreateToolTip` and once the owner has gone.
    const BalloonWindow* TipWindow() const { return window_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Wait { None, ToAppear, ToGo };

    void SetUp(int icon, QWidget* owner, const QString& title, const QString& text, int backColor,
               int foreColor);
    void DropWindow();
    void ShowAtTwips(double x, double y);
    void Appear(const QRect& screenTool);
    void WatchOwner(QWidget* owner);
    /// The pointer has moved on the owner: the tip comes `DelayTime` after its last move.
    void Rest(const QPoint& screenPoint);
    void LeaveAlone();
    void OnTicker();
    void StartWait(Wait wait, int milliseconds);
    BalloonLook Look() const;

    bool closeBox_ = false;
    bool shown_ = false;
    int maxLength_ = 4096;
    int visibleTime_ = 5000;
    int delayTime_ = 100;
    int icon_ = NoIcon;
    int foreColor_ = Unset;
    QString title_;
    bool popupOnDemand_ = false;
    int backColor_ = Unset;
    QString tipText_;
    int style_ = 0;
    bool centered_ = false;
    bool beside_ = false;

    QPointer<QWidget> owner_;
    /// The window that the owner lies in, since the tip was shown; the tip follows its moves.
    QPointer<QWidget> ownersWindow_;
    QPointer<BalloonWindow> window_;
    std::int32_t trackPosition_ = 0;
    QPoint restPoint_;
    bool wasSeen_ = false;  ///< the pointer has had its tip and has not left since
    std::function<void()> delayed_;
    Wait wait_ = Wait::None;
    std::unique_ptr<platform::Ticker> ticker_;
};

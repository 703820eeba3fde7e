#include "foundation/Controls.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

namespace {

ControlArray Make(const QString& name, ControlKind kind, int count, int first = 1) {
    return {name, kind, first, std::vector<Control>(static_cast<std::size_t>(count))};
}

constexpr int TimerSlots = 100;
constexpr int MinuteSpots = 60;

}  // namespace

ClockControls::ClockControls()
    : picFrame(Make(u"picFrame"_s, ControlKind::Picture, 1)),
      txtMsg(Make(u"txtMsg"_s, ControlKind::TextBox, TimerSlots)),
      imgSpeaker(Make(u"imgSpeaker"_s, ControlKind::Image, 1)),
      shpArea(Make(u"shpArea"_s, ControlKind::Shape, 1)),
      imgAction(Make(u"imgAction"_s, ControlKind::Image, 1)),
      lblLocation(Make(u"lblLocation"_s, ControlKind::Label, 1)),
      imgSunMoon(Make(u"imgSunMoon"_s, ControlKind::Image, 2, 0)),
      shpHourHand(Make(u"shpHourHand"_s, ControlKind::Shape, 2)),
      shpMinuteHand(Make(u"shpMinuteHand"_s, ControlKind::Shape, 2)),
      shpSecondHand(Make(u"shpSecondHand"_s, ControlKind::Shape, 2)),
      lblDigitalNumber(Make(u"lblDigitalNumber"_s, ControlKind::Label, 6)),
      imgTimer(Make(u"imgTimer"_s, ControlKind::Image, TimerSlots)),
      imgClockNumber(Make(u"imgClockNumber"_s, ControlKind::Image, MinuteSpots)),
      lblHour(Make(u"lblHour"_s, ControlKind::Label, MinuteSpots)),
      lblMsg(Make(u"lblMsg"_s, ControlKind::Label, 1)),
      lblActionMsg(Make(u"lblActionMsg"_s, ControlKind::Label, 1)),
      lblClock(Make(u"lblClock"_s, ControlKind::Label, 1)),
      lblTimeInput(Make(u"lblTimeInput"_s, ControlKind::Label, 1)),
      lblTimeOutput(Make(u"lblTimeOutput"_s, ControlKind::Label, 1)),
      imgFlag(Make(u"imgFlag"_s, ControlKind::Image, 1)),
      imgClock(Make(u"imgClock"_s, ControlKind::Image, 2, 0)),
      timClock(Make(u"timClock"_s, ControlKind::Timer, 1)),
      imgList(Make(u"imgList"_s, ControlKind::ImageList, 1)),
      objDialog(Make(u"objDialog"_s, ControlKind::Dialog, 1)),
      MusicPlayer(Make(u"MusicPlayer"_s, ControlKind::Player, 1)) {}

std::vector<ControlArray*> ClockControls::All() {
    return {&picFrame,         &txtMsg,     &imgSpeaker,     &shpArea,       &imgAction,
            &lblLocation,      &imgSunMoon, &shpHourHand,    &shpMinuteHand, &shpSecondHand,
            &lblDigitalNumber, &imgTimer,   &imgClockNumber, &lblHour,       &lblMsg,
            &lblActionMsg,     &lblClock,   &lblTimeInput,   &lblTimeOutput, &imgFlag,
            &imgClock,         &timClock,   &imgList,        &objDialog,     &MusicPlayer};
}

}  // namespace mduUILib

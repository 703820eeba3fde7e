#include "drawing/StockPictures.h"

#include <QPainter>
#include <functional>
#include <map>

#include "drawing/StockPicturesDraw.h"

namespace drawing {

namespace {

constexpr int Side = 256;  // pixels

std::shared_ptr<const QImage> Draw(const std::function<void(QPainter&)>& draw) {
    auto image = std::make_shared<QImage>(Side, Side, QImage::Format_ARGB32_Premultiplied);
    image->fill(Qt::transparent);
    QPainter painter(image.get());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setWindow(-50, -50, 100, 100);
    painter.setPen(Qt::NoPen);
    draw(painter);
    return image;
}

std::shared_ptr<const QImage> DrawSpeakerIn(stock::SpeakerState state) {
    return Draw([state](QPainter& painter) { stock::DrawSpeaker(painter, state); });
}

std::map<StockPicture, std::shared_ptr<const QImage>> DrawAll() {
    return {
        {StockPicture::SpeakerIdle, DrawSpeakerIn(stock::SpeakerState::Idle)},
        {StockPicture::SpeakerMuted, DrawSpeakerIn(stock::SpeakerState::Muted)},
        {StockPicture::SpeakerTalking, DrawSpeakerIn(stock::SpeakerState::Talking)},
        {StockPicture::SpotRight, Draw([](QPainter& p) { stock::DrawSpot(p, false); })},
        {StockPicture::SpotLeft, Draw([](QPainter& p) { stock::DrawSpot(p, true); })},
        {StockPicture::TimerMark, Draw(stock::DrawTimerMark)},
        {StockPicture::Action, Draw(stock::DrawAction)},
        {StockPicture::ActionSpeaking, Draw(stock::DrawActionSpeaking)},
        {StockPicture::Sun, Draw(stock::DrawSun)},
        {StockPicture::Moon, Draw(stock::DrawMoon)},
        {StockPicture::Handle, Draw(stock::DrawHandle)},
        {StockPicture::Clock, Draw(stock::DrawClock)},
    };
}

}  // namespace

std::shared_ptr<const QImage> GetStockPicture(StockPicture picture) {
    static const auto pictures = DrawAll();
    const auto found = pictures.find(picture);
    return found != pictures.end() ? found->second : nullptr;
}

}  // namespace drawing

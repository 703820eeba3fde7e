#include "shell/ShellVoice.h"
#include "platform/Voices.h"

using namespace Qt::StringLiterals;

namespace shell {

ShellVoice::ShellVoice(platform::Voices& voices, std::function<void(const QString&)> tell)
    : voices_(voices), tell_(std::move(tell)) {}

void ShellVoice::SpeakMessage(const QString& text) {
    if (!voice_) {
        voice_ = voices_.MakeVoice();
    }
    constexpr int atOnce = 1;  // the shell goes on while its voice speaks
    if (voice_ && !text.isEmpty() && !voice_->Speak(text, atOnce)) {
        tell_(voice_->LastError());
    }
}

void ShellVoice::PurgeSpeech() {
    constexpr int purge = 2;
    if (voice_) {
        voice_->Speak(u"."_s, purge);
    }
}

}  // namespace shell

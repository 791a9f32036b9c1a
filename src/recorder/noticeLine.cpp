#include "recorder/noticeLine.h"

#include "platform/forms/Desktop.h"
#include "platform/sound/SoundSystem.h"

namespace lyrebrook {

void makeNoticeLine(Label& label) {
    label.setLook(Look::notice);
    label.widget()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void showNotice(SoundNotice& notice, const DirectSoundCaptureBuffer8* recording, Label& label) {
    const SoundCard* card = SoundSystem::card();
    const std::chrono::milliseconds now(desktop().monotonicMilliseconds());
    notice.look(card == nullptr ? CardNotice::none : card->notice(), recording, now);
    label.setCaption(notice.text(now));
}

}  // namespace lyrebrook

#include "recorder/recordingPlate.h"

namespace lyrebrook {

void makeRecordingPlate(Label& label) {
    label.setLook(Look::status);
    label.setForeColor(red);
    label.setAlignment(Qt::AlignCenter);
    label.setVisible(false);
    QSizePolicy keepsItsPlace = label.widget()->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    label.widget()->setSizePolicy(keepsItsPlace);
}

}  // namespace lyrebrook

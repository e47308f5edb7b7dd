// The texts that the property dialog shows for the settings of a publisher.
#pragma once

#include <QString>
#include <QtGlobal>

/// The publish mode (enPublishMode), translated. Empty for a mode that the dialog does not have.
QString publishModeText(uint publishMode);

/// What a stacker holds (enOrlaStackerDiscType); names of media are not translated. Empty for what the dialog
/// does not have.
QString discTypeText(uint discType);

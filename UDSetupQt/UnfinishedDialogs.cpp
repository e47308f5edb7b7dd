// The actions whose dialogs do not exist yet. They stay disabled for every user and selection; a double click
// on a row does nothing. This file goes when the dialogs come, and with it the calls of
// disableUnfinishedActions.
#include "PubSetup.h"

void PubSetup::disableUnfinishedActions()
{
    for (QAction* action : {addPublisher, showPublisherProperty, showSetting, collectAndSaveLogs}) {
        action->setEnabled(false);
    }
}

void PubSetup::showAddDialog() {}

void PubSetup::showPropertyDialog() {}

void PubSetup::showSettingDialog() {}

void PubSetup::doCollectAndSaveLogs() {}

// Applies the rules for publish mode and stackers to the controls.
#include "ComboValues.h"
#include "PubMgrConst.h"
#include "propertyDialog.h"

void propertyDialogEx::changeStackerPub()
{
    changeStacker(PUB_MODE);
}

void propertyDialogEx::changeStacker3()
{
    changeStacker(STACKER_3);
}

void propertyDialogEx::changeStacker(int combNum)
{
    if (selectPublishMode->currentIndex() == -1) {
        return; // the publish mode is unknown
    }
    setChanged();
    const UINT mode = selectedValue(selectPublishMode);
    const StackerDemand demand = stackerDemand(mode, modelFamily(m_modelType), combNum == STACKER_3);
    arrangeStacker2(demand.stacker2, combNum == PUB_MODE);
    if (demand.stacker3) {
        selectValue(selectStacker3, demand.stacker3); // a change re-enters this function with STACKER_3
    }
    if (demand.stacker3Enabled) {
        selectStacker3->setEnabled(*demand.stacker3Enabled);
    }
    showSequence();
    if (demand.stacker2 == Stacker2Rule::freeMedia) {
        removeValue(selectStacker2, PUBMGR_STACKERDISCTYPE_OUTPUT);
    }
    repaint();
}

void propertyDialogEx::arrangeStacker2(Stacker2Rule rule, bool modeChanged)
{
    switch (rule) {
    case Stacker2Rule::output:
        if (selectStacker2->findData(PUBMGR_STACKERDISCTYPE_OUTPUT) == -1) {
            selectStacker2->addItem(tr("Output Stacker"), UINT{PUBMGR_STACKERDISCTYPE_OUTPUT});
        }
        selectValue(selectStacker2, PUBMGR_STACKERDISCTYPE_OUTPUT);
        break;
    case Stacker2Rule::followsStacker1:
        // Both boxes have the same media in the same order.
        selectStacker2->setCurrentIndex(selectStacker1->currentIndex());
        break;
    case Stacker2Rule::freeMedia:
        if (modeChanged && selectedValue(selectStacker2) == PUBMGR_STACKERDISCTYPE_OUTPUT) {
            selectValue(selectStacker2, PUBMGR_STACKERDISCTYPE_CDR);
        }
        break;
    }
    selectStacker2->setEnabled(rule == Stacker2Rule::freeMedia);
}

void propertyDialogEx::showSequence()
{
    const bool known = selectPublishMode->currentIndex() != -1;
    setStackerSequenceImage(known ? stackerPicture(selectedValue(selectPublishMode), modelFamily(m_modelType),
                                                   selectStacker3->currentIndex() == 0)
                                  : nullptr);
}

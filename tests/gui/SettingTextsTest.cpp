// The texts for settings that programs without windows show are those of the property dialog, in every
// language.
#include "SettingTexts.h"

#include "EntryTranslator.h"
#include "Installation.h"
#include "propertyDialog.h"

#include <QtTest>

class SettingTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void theTextsAreThoseOfTheDialog()
    {
        const Installation installation;
        EntryTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const propertyDialogEx dialog(nullptr);
        QCOMPARE(dialog.selectPublishMode->count(), 3);
        for (int i = 0; i < dialog.selectPublishMode->count(); ++i) {
            QCOMPARE(publishModeText(dialog.selectPublishMode->itemData(i).toUInt()),
                     dialog.selectPublishMode->itemText(i));
        }
        QCOMPARE(dialog.selectStacker2->count(), 8);
        for (int i = 0; i < dialog.selectStacker2->count(); ++i) {
            QCOMPARE(discTypeText(dialog.selectStacker2->itemData(i).toUInt()),
                     dialog.selectStacker2->itemText(i));
        }
        QCOMPARE(discTypeText(PUBMGR_STACKERDISCTYPE_NOTUSE), dialog.selectStacker3->itemText(1));
        QCoreApplication::removeTranslator(&translator);
    }

    void otherValuesHaveNoText()
    {
        QCOMPARE(publishModeText(3), QString());
        QCOMPARE(publishModeText(0xFFFFFFFF), QString());
        QCOMPARE(discTypeText(2), QString());
        QCOMPARE(discTypeText(16), QString());
        QCOMPARE(discTypeText(0xFFFFFFFF), QString());
    }
};

QTEST_MAIN(SettingTextsTest)
#include "SettingTextsTest.moc"

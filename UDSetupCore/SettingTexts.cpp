#include "SettingTexts.h"

#include "PubMgrConst.h"

#include <QCoreApplication>

QString publishModeText(uint publishMode)
{
    switch (publishMode) {
    case PUBMGR_PUBLISHMODE_NORMAL:
        return QCoreApplication::translate("propertyDialog", "Standard mode");
    case PUBMGR_PUBLISHMODE_OUTPUT:
        return QCoreApplication::translate("propertyDialog", "External Output / Low-volume mode");
    case PUBMGR_PUBLISHMODE_BATCH:
        return QCoreApplication::translate("propertyDialog", "Batch mode");
    default:
        return QString();
    }
}

QString discTypeText(uint discType)
{
    switch (discType) {
    case PUBMGR_STACKERDISCTYPE_OUTPUT:
        return QCoreApplication::translate("propertyDialog", "Output Stacker");
    case PUBMGR_STACKERDISCTYPE_NOTUSE:
        return QCoreApplication::translate("propertyDialog", "Do not use");
    case PUBMGR_STACKERDISCTYPE_CDR:
        return QStringLiteral("CD-R");
    case PUBMGR_STACKERDISCTYPE_DVDR:
        return QStringLiteral("DVD(+R/-R)");
    case PUBMGR_STACKERDISCTYPE_DVDRDL:
        return QStringLiteral("DVD(+R/-R) DL");
    case PUBMGR_STACKERDISCTYPE_BDR:
        return QStringLiteral("BD-R");
    case PUBMGR_STACKERDISCTYPE_BDRDL:
        return QStringLiteral("BD-R DL");
    case PUBMGR_STACKERDISCTYPE_BDRTL:
        return QStringLiteral("BD-R XL 100");
    case PUBMGR_STACKERDISCTYPE_BDRQL:
        return QStringLiteral("BD-R XL 128");
    default:
        return QString();
    }
}

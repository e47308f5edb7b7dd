// Tests the property dialog before it shows a publisher: the name, the text and the position of every widget.
#include "PropertyFixture.h"
#include "SameImage.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QMetaMethod>
#include <QPushButton>

class PropertyFormTest : public QObject
{
    Q_OBJECT

private slots:
    void everyWidget_data();
    void everyWidget();
    void tabs();
    void windowIcon();
    void maintenanceButtons();
    void comboBoxItems();
    void initialValues();
    void pictureView();
    void applyIsDisabled();
    void sizeIsFixed();
    void slotsInOrder();
    void callersOfChangeStacker();
    void changesEnableApply();
    void picturesAreStacked();
    void styleFollowsThePalette();
    void otherEventsKeepTheStyle();
    void stackerRulesRepaintAtOnce();
};

void PropertyFormTest::everyWidget_data()
{
    QTest::addColumn<QString>("inside");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text"); // null: not checked
    const auto row = [](const char* inside, const char* name, const char* type, const char* text = nullptr) {
        QTest::newRow(name) << inside << type << QString(text);
    };
    row("pageGeneral", "pubNamelabel", "QLabel", "Name");
    row("pageGeneral", "textPublisherName", "QLineEdit");
    row("pageGeneral", "labelHostName", "QLabel", "Host name");
    row("pageGeneral", "textHostName", "QLabel");
    row("pageGeneral", "groupStacker", "QGroupBox", "Stacker Settings");
    row("groupStacker", "labelPublishMode", "QLabel", "Publish Mode");
    row("groupStacker", "selectPublishMode", "QComboBox");
    row("groupStacker", "textPublishMode", "QLabel");
    row("groupStacker", "labelStacker1", "QLabel", "Stacker 1");
    row("groupStacker", "selectStacker1", "QComboBox");
    row("groupStacker", "textStacker1", "QLabel");
    row("groupStacker", "labelStacker2", "QLabel", "Stacker 2");
    row("groupStacker", "selectStacker2", "QComboBox");
    row("groupStacker", "textStacker2", "QLabel");
    row("groupStacker", "labelStacker3", "QLabel", "Stacker 3");
    row("groupStacker", "selectStacker3", "QComboBox");
    row("groupStacker", "textStacker3", "QLabel");
    row("groupStacker", "viewStackerSequence", "QGraphicsView");
    row("pageGeneral", "groupDrive", "QGroupBox", "Drive Settings");
    row("groupDrive", "labelUseDrive", "QLabel", "Drive to Use");
    row("groupDrive", "selectUseDrive", "QComboBox");
    row("groupDrive", "textUseDrive", "QLabel");
    row("groupDrive", "labelRetry", "QLabel", "Number of write retries");
    row("groupDrive", "spinRetryCount", "QDoubleSpinBox");
    row("groupDrive", "textRetryCount", "QLabel");
    row("pageGeneral", "groupPrinter", "QGroupBox", "Printer Settings");
    row("groupPrinter", "checkErrorMark", "QCheckBox", "Show &error mark on discs that experience errors");
    row("groupPrinter", "labelErrorMark", "QLabel", "Failure error mark");
    row("groupPrinter", "textErrorMark", "QLabel");

    row("pagePrinterMaint", "btnNozzleCheck", "QAbstractButton");
    row("pagePrinterMaint", "labelNozzleCheck", "QLabel", "Nozzle Check");
    row("pagePrinterMaint", "labelNozzleCheckDetail", "QLabel",
        "Use this utility if gaps or faint areas appear in your printout.");
    row("pagePrinterMaint", "btnHeadCleaning", "QAbstractButton");
    row("pagePrinterMaint", "labelHeadCleaning", "QLabel", "Head Cleaning");
    row("pagePrinterMaint", "labelHeadCleaningDetail", "QLabel",
        "Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.");

    row("pageLifetime", "labelCompleteDiscNumName", "QLabel", "Total discs published:");
    row("pageLifetime", "labelCompleteDiscNum", "QLabel");
    row("pageLifetime", "labelCompleteDiscNumUnit", "QLabel", "[discs]");
    row("pageLifetime", "labelPrintCountName", "QLabel", "Number of printed discs:");
    row("pageLifetime", "labelPrintCount", "QLabel");
    row("pageLifetime", "labelPrintCountUnit", "QLabel", "[discs]");
    row("pageLifetime", "labelMainteBoxLifeName", "QLabel", "Maintenance Box free space:");
    row("pageLifetime", "labelMainteBoxLife", "QLabel");
    row("pageLifetime", "labelMainteBoxLifeUnit", "QLabel", "[%]");
    row("pageLifetime", "labelDrive1LifeName", "QLabel", "Service life of Drive 1:");
    row("pageLifetime", "labelDrive1Life", "QLabel");
    row("pageLifetime", "labelDrive1LifeUnit", "QLabel", "[%]");
    row("pageLifetime", "labelDrive2LifeName", "QLabel", "Service life of Drive 2:");
    row("pageLifetime", "labelDrive2Life", "QLabel");
    row("pageLifetime", "labelDrive2LifeUnit", "QLabel", "[%]");

    row("pageVersion", "SerialNolabel", "QLabel", "Serial number:");
    row("pageVersion", "labelSerialNo", "QLabel");
    row("pageVersion", "groupVersion", "QGroupBox", "Version Information");
    row("groupVersion", "labelAutoLoaderVersionLabel", "QLabel", "Autoloader:");
    row("groupVersion", "labelAutoLoaderVersionValue", "QLabel");
    row("groupVersion", "labelPrinterVersionLabel", "QLabel", "Printer:");
    row("groupVersion", "labelPrinterVersionValue", "QLabel");
    row("groupVersion", "labelDrive1VersionLabel", "QLabel", "Drive 1:");
    row("groupVersion", "labelDrive1VersionValue", "QLabel");
    row("groupVersion", "labelDrive2VersionLabel", "QLabel", "Drive 2:");
    row("groupVersion", "labelDrive2VersionValue", "QLabel");
    row("groupVersion", "labelSSSVersionLabel", "QLabel", "Server:");
    row("groupVersion", "labelSSSVersionValue", "QLabel");
    row("groupVersion", "labelUDNAVersionLabel", "QLabel", "Ulmar Disc Net Administrator:");
    row("groupVersion", "labelUDNAVersionValue", "QLabel");

    row("propertyDialog", "okButton", "QAbstractButton", "OK");
    row("propertyDialog", "applyButton", "QAbstractButton", "&Apply");
    row("propertyDialog", "cancelButton", "QAbstractButton", "Cancel");
}

void PropertyFormTest::everyWidget()
{
    QFETCH(QString, inside);
    QFETCH(QString, type);
    QFETCH(QString, text);
    const propertyDialogEx dialog(nullptr);
    const auto widget = dialog.findChild<QWidget*>(QTest::currentDataTag());
    QVERIFY(widget);
    QVERIFY2(widget->inherits(qPrintable(type)), widget->metaObject()->className());
    if (!text.isNull()) {
        QCOMPARE(widget->property(type == "QGroupBox" ? "title" : "text").toString(), text);
    }
    const QWidget* place = inside == "propertyDialog" ? &dialog : dialog.findChild<QWidget*>(inside);
    QVERIFY(place && place->isAncestorOf(widget));
    QCOMPARE(dialog.propertyTab->isAncestorOf(widget), inside != "propertyDialog");
}

void PropertyFormTest::tabs()
{
    const propertyDialogEx dialog(nullptr);
    QStringList titles;
    QList<QWidget*> pages;
    for (int i = 0; i < dialog.propertyTab->count(); ++i) {
        titles << dialog.propertyTab->tabText(i);
        pages << dialog.propertyTab->widget(i);
    }
    QCOMPARE(titles, (QStringList{"General", "Printer Maintenance", "Maintenance Info", "About"}));
    QCOMPARE(pages, (QList<QWidget*>{dialog.pageGeneral, dialog.pagePrinterMaint, dialog.pageLifetime,
                                     dialog.pageVersion}));
    QCOMPARE(dialog.propertyTab->styleSheet(),
             "QTabWidget::pane > QWidget {\n\tbackground: palette(base);\n}");
}

void PropertyFormTest::windowIcon()
{
    const propertyDialogEx dialog(nullptr);
    const QSize size = QImage(":/res/UDSetup.png").size();
    QVERIFY(showsImage(dialog.windowIcon(), ":/res/UDSetup.png", size.width()));
}

void PropertyFormTest::maintenanceButtons()
{
    const propertyDialogEx dialog(nullptr);
    QCOMPARE(dialog.btnNozzleCheck->iconSize(), QSize(64, 64));
    QCOMPARE(dialog.btnHeadCleaning->iconSize(), QSize(64, 64));
    QVERIFY(showsImage(dialog.btnNozzleCheck->icon(), ":/res/PrinterMaint/btnNozzleCheck.png", 64));
    QVERIFY(showsImage(dialog.btnHeadCleaning->icon(), ":/res/PrinterMaint/btnHeadCleaning.png", 64));
}

void PropertyFormTest::comboBoxItems()
{
    const propertyDialogEx dialog(nullptr);
    QCOMPARE(items(dialog.selectPublishMode),
             (QStringList{"Standard mode=0", "External Output / Low-volume mode=2", "Batch mode=1"}));
    const QStringList media{"CD-R=1",    "DVD(+R/-R)=6",   "DVD(+R/-R) DL=7", "BD-R=8",
                            "BD-R DL=9", "BD-R XL 100=10", "BD-R XL 128=11"};
    QCOMPARE(items(dialog.selectStacker1), media);
    QCOMPARE(items(dialog.selectStacker2), media + QStringList{"Output Stacker=0"});
    QCOMPARE(items(dialog.selectStacker3), (QStringList{"Use=0", "Do not use=32"}));
    QStringList drives;
    for (int i = 0; i < dialog.selectUseDrive->count(); ++i) {
        drives << dialog.selectUseDrive->itemText(i); // the value is the index
    }
    QCOMPARE(drives, (QStringList{"Use Both", "Use Drive 1 Only", "Use Drive 2 Only"}));
}

void PropertyFormTest::initialValues()
{
    const propertyDialogEx dialog(nullptr);
    QCOMPARE(dialog.selectStacker2->isEnabled(), false);
    QCOMPARE(dialog.selectStacker2->currentIndex(), 0);
    QCOMPARE(dialog.selectStacker3->isEnabled(), false);
    QCOMPARE(dialog.selectStacker3->currentIndex(), 0);
    QCOMPARE(dialog.spinRetryCount->decimals(), 0);
    QCOMPARE(dialog.spinRetryCount->minimum(), 0.0);
    QCOMPARE(dialog.spinRetryCount->maximum(), 9.0);
    QCOMPARE(dialog.spinRetryCount->value(), 3.0);
}

void PropertyFormTest::pictureView()
{
    propertyDialogEx dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.viewStackerSequence->size(), QSize(87, 87));
    QCOMPARE(dialog.viewStackerSequence->minimumSize(), QSize(87, 87));
    QCOMPARE(dialog.viewStackerSequence->maximumSize(), QSize(87, 87));
    QCOMPARE(dialog.viewStackerSequence->focusPolicy(), Qt::NoFocus);
}

void PropertyFormTest::applyIsDisabled()
{
    const propertyDialogEx dialog(nullptr);
    QVERIFY(!dialog.applyButton->isEnabled());
    QVERIFY(dialog.okButton->isEnabled() && dialog.cancelButton->isEnabled());
}

void PropertyFormTest::sizeIsFixed()
{
    propertyDialogEx dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QSize size = dialog.size();
    QVERIFY2(size.width() >= dialog.sizeHint().width() && size.height() >= dialog.sizeHint().height(),
             "the dialog is too small for its widgets");
    dialog.resize(size + QSize(50, 50));
    QCOMPARE(dialog.size(), size);
    dialog.resize(size - QSize(50, 50));
    QCOMPARE(dialog.size(), size);
}

void PropertyFormTest::slotsInOrder()
{
    const QMetaObject& meta = propertyDialogEx::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Slot) {
            names << meta.method(i).methodSignature();
        }
    }
    QCOMPARE(names, (QStringList{"savePublisherInfo()", "saveAndExit()", "saveAndContinue()", "setChanged()",
                                 "changeStackerPub()", "changeStacker(int)", "changeStacker()",
                                 "changeStacker3()", "nozzleCheckSequence()", "headCleaningSequence()"}));
    QCOMPARE(meta.method(meta.indexOfSlot("savePublisherInfo()")).returnType(), int(QMetaType::Bool));
}

void PropertyFormTest::callersOfChangeStacker()
{
    QCOMPARE(int(propertyDialogEx::STACKER_1_2), 0);
    QCOMPARE(int(propertyDialogEx::STACKER_3), 1);
    QCOMPARE(int(propertyDialogEx::PUB_MODE), 2);
}

void PropertyFormTest::changesEnableApply()
{
    // A change of any setting marks the dialog as changed, even before it is filled.
    const auto marks = [](const std::function<void(propertyDialogEx&)>& change) {
        propertyDialogEx dialog(nullptr);
        change(dialog);
        return dialog.applyButton->isEnabled();
    };
    QVERIFY(!marks([](propertyDialogEx&) {}));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.textPublisherName->setText("x"); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.selectPublishMode->setCurrentIndex(2); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.selectStacker1->setCurrentIndex(1); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.selectStacker2->setCurrentIndex(1); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.selectStacker3->setCurrentIndex(1); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.selectUseDrive->setCurrentIndex(1); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.spinRetryCount->setValue(4); }));
    QVERIFY(marks([](propertyDialogEx& dialog) { dialog.checkErrorMark->click(); }));
    QVERIFY2(!marks([](propertyDialogEx& dialog) { dialog.checkErrorMark->setChecked(true); }),
             "a programmatic change marks the dialog as changed");
}

void PropertyFormTest::picturesAreStacked()
{
    propertyDialogEx dialog(nullptr);
    const QGraphicsView* view = dialog.viewStackerSequence;
    dialog.setStackerSequenceImage(":/res/A11-9.png");
    QCOMPARE(pictureCount(view), 1);
    QCOMPARE(picture(view), "A11-9");
    QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);

    dialog.setStackerSequenceImage(":/res/A11-3.png");
    QCOMPARE(pictureCount(view), 2);
    QCOMPARE(picture(view), "A11-3");
    const QGraphicsScene* scene = view->scene();

    dialog.setStackerSequenceImage(nullptr);
    QCOMPARE(pictureCount(view), 0);
    QCOMPARE(picture(view), "");
    QCOMPARE(view->scene(), scene);

    dialog.setStackerSequenceImage(":/res/no such picture.png");
    QCOMPARE(pictureCount(view), 1);
    QCOMPARE(picture(view), "?");
}

void PropertyFormTest::styleFollowsThePalette()
{
    const QPalette before = QApplication::palette();
    propertyDialogEx dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto background = [&dialog] {
        const QWidget* page = dialog.propertyTab->currentWidget();
        const QPoint corner = page->mapTo(&dialog, QPoint(page->width() - 2, page->height() - 2));
        return dialog.grab().toImage().pixelColor(corner);
    };
    QCOMPARE(background(), before.color(QPalette::Base));

    QPalette dark(QColor(40, 40, 44));
    dark.setColor(QPalette::Base, QColor(21, 22, 23));
    QApplication::setPalette(dark);
    QTRY_COMPARE(background(), QColor(21, 22, 23));
    QApplication::setPalette(before);
    QTRY_COMPARE(background(), before.color(QPalette::Base));
}

/// Counts the events of one type that a widget receives.
class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type) : m_type(type)
    {
        watched->installEventFilter(this);
    }
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

void PropertyFormTest::otherEventsKeepTheStyle()
{
    propertyDialogEx dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    EventCounter restyled(dialog.propertyTab, QEvent::StyleChange);
    QEvent other(QEvent::ToolTipChange);
    QApplication::sendEvent(&dialog, &other);
    QCOMPARE(restyled.count, 0);
    QEvent palette(QEvent::ApplicationPaletteChange);
    QApplication::sendEvent(&dialog, &palette);
    QVERIFY(restyled.count > 0);
    QCOMPARE(dialog.propertyTab->styleSheet(),
             "QTabWidget::pane > QWidget {\n\tbackground: palette(base);\n}");
}

void PropertyFormTest::stackerRulesRepaintAtOnce()
{
    propertyDialogEx dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCoreApplication::processEvents();
    EventCounter painted(&dialog, QEvent::Paint);
    dialog.changeStacker();
    QVERIFY(painted.count > 0);
}

QTEST_MAIN(PropertyFormTest)
#include "PropertyFormTest.moc"

// The initial state of the dialog that registers a network publisher.
#include "AddPublisherFixture.h"

#include "SameImage.h"
#include "StdoutCapture.h"

#include <QAccessible>
#include <QLabel>
#include <QMetaMethod>
#include <QVBoxLayout>

class AddPublisherFormTest : public AddPublisherFixture
{
    Q_OBJECT

private slots:
    void init();

    void hasItsTitleAndWidgets();
    void hasAFixedSize();
    void tabOrderStartsAtTheHost();
    void offersAName_data();
    void offersAName();
    void offersNoNameWhenAllAreTaken();
    void printsTheRegisteredPublishers();
};

void AddPublisherFormTest::init()
{
    m_dialog.reset();
    m_installation = Installation();
}

void AddPublisherFormTest::hasItsTitleAndWidgets()
{
    open();
    QCOMPARE(m_dialog->windowTitle(), "Register New CD/DVD/BD Publisher");
    QVERIFY(showsImage(m_dialog->windowIcon(), ":/res/UDSetup.png", 48));
    QVERIFY(!m_dialog->parentWidget());
    const struct
    {
        const char *name, *type, *text;
    } widgets[] = {
        {"labelHostName", "QLabel",
         "Please specify the IP address or host name for the CD/DVD Publisher on the network you want to "
         "register."},
        {"textHostName", "QLineEdit", ""},
        {"labelPublisherName", "QLabel", "Please type the name of a CD/DVD Publisher."},
        {"textPublisherName", "QLineEdit", "RT-300N 1"},
        {"labelListedName", "ListedNameNote", ""},
        {"buttonBox", "QDialogButtonBox", nullptr},
    };
    const auto layout = qobject_cast<QVBoxLayout*>(m_dialog->layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 6);
    for (int i = 0; i < 6; ++i) {
        const QWidget* widget = layout->itemAt(i)->widget();
        QVERIFY(widget);
        QCOMPARE(widget->objectName(), widgets[i].name);
        QCOMPARE(widget->metaObject()->className(), widgets[i].type);
        if (widgets[i].text) {
            QCOMPARE(widget->property("text").toString(), widgets[i].text);
        }
    }
    QCOMPARE(m_dialog->buttonBox->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (const QLineEdit* field : {m_dialog->textHostName, m_dialog->textPublisherName}) {
        QCOMPARE(field->validator(), nullptr);
        QCOMPARE(field->inputMask(), QString());
        QCOMPARE(field->maxLength(), std::numeric_limits<int>::max());
    }
    const QMetaObject& meta = addPublisherDialog::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("addPublisher()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void AddPublisherFormTest::hasAFixedSize()
{
    open();
    QCOMPARE(m_dialog->minimumSize(), m_dialog->size());
    QCOMPARE(m_dialog->maximumSize(), m_dialog->size());
    const QSize size = m_dialog->size();
    m_dialog->setMinimumSize(0, 0);
    m_dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    m_dialog->adjustSize();
    QCOMPARE(m_dialog->size(), size);
}

void AddPublisherFormTest::tabOrderStartsAtTheHost()
{
    open();
    QStringList reached;
    for (int i = 0; i < 4; ++i) {
        const QWidget* widget = m_dialog->focusWidget();
        const auto pushed = qobject_cast<const QPushButton*>(widget);
        reached << (pushed ? pushed->text() : widget->objectName());
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(reached.mid(0, 2), (QStringList{"textHostName", "textPublisherName"}));
    QCOMPARE(QSet<QString>(reached.begin() + 2, reached.end()), (QSet<QString>{"OK", "Cancel"}));
    QVERIFY(m_dialog->textHostName->hasFocus());
    QVERIFY(button(QDialogButtonBox::Ok)->isDefault());

    QCOMPARE(m_dialog->labelHostName->buddy(), m_dialog->textHostName);
    QCOMPARE(m_dialog->labelPublisherName->buddy(), m_dialog->textPublisherName);
    const auto spoken = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    QCOMPARE(spoken(m_dialog->textHostName), m_dialog->labelHostName->text());
    QCOMPARE(spoken(m_dialog->textPublisherName), m_dialog->labelPublisherName->text());
}

void AddPublisherFormTest::offersAName_data()
{
    QTest::addColumn<QStringList>("local");
    QTest::addColumn<QStringList>("network");
    QTest::addColumn<QString>("offered");
    const QStringList none;
    QTest::newRow("first") << none << none << "RT-300N 1";
    QTest::newRow("second") << none << QStringList{"RT-300N 1"} << "RT-300N 2";
    QTest::newRow("local publisher") << QStringList{"RT-300N 1"} << none << "RT-300N 2";
    QTest::newRow("other case") << QStringList{"rt-300n 1"} << QStringList{"Rt-300N 2"} << "RT-300N 3";
    QTest::newRow("gap") << none << QStringList{"RT-300N 1", "RT-300N 3"} << "RT-300N 2";
    QTest::newRow("others") << QStringList{"Studio"} << QStringList{"RT-300N 12"} << "RT-300N 1";
}

void AddPublisherFormTest::offersAName()
{
    QFETCH(QStringList, local);
    QFETCH(QStringList, network);
    int number = 0;
    for (const QString& name : local) {
        m_installation.addLocal("p" + std::to_string(++number), name.toStdString());
    }
    for (const QString& name : network) {
        Installation::addNetwork("p" + std::to_string(++number), name.toStdString(), "host");
    }
    open();
    QTEST(m_dialog->textPublisherName->text(), "offered");
    QCOMPARE(m_dialog->textHostName->text(), QString());
}

void AddPublisherFormTest::offersNoNameWhenAllAreTaken()
{
    for (int i = 1; i <= 998; ++i) {
        const std::string number = std::to_string(i);
        Installation::addNetwork("p" + number, "RT-300N " + number, "host" + number);
    }
    open();
    QCOMPARE(m_dialog->textPublisherName->text(), "RT-300N 999");
    Installation::addNetwork("p999", "rt-300n 999", "host999");
    open();
    QCOMPARE(m_dialog->textPublisherName->text(), QString());
}

void AddPublisherFormTest::printsTheRegisteredPublishers()
{
    m_installation.addLocal("a", "Studio");
    Installation::addNetwork("{ARPUB20260101_1}", "Server room", "host");
    WriteText(Installation::settingFile("nameless"), "[Common]\nPublisherConnectionType=1\n");
    StdoutCapture output;
    const addPublisherDialog dialog(nullptr);
    QStringList lines = QString::fromStdString(output.Stop()).split('\n');
    lines.sort();
    QCOMPARE(lines, (QStringList{"", "addPublisherDialog::addPublisherDialog, a Studio ",
                                 "addPublisherDialog::addPublisherDialog, nameless  ",
                                 "addPublisherDialog::addPublisherDialog, {ARPUB20260101_1} Server room "}));
}

QTEST_MAIN(AddPublisherFormTest)
#include "AddPublisherFormTest.moc"

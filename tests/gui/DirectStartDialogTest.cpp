// Starting with a publisher's name, called in the test's own process: which dialog appears, and which event
// loop it ends.
#include "Boxes.h"
#include "DirectStart.h"
#include "Installation.h"
#include "LocalRoom.h"
#include "PubSetup.h"
#include "Shown.h"
#include "propertyDialog.h"

#include <QProgressDialog>
#include <QTest>

#include <optional>

namespace {

/// Removes a setting file when the busy indicator is created. At that moment the publisher's name has been
/// read, but not its record.
class RemoveBehindTheIndicator : public QObject
{
public:
    explicit RemoveBehindTheIndicator(std::string id) : m_id(std::move(id))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::WindowTitleChange && qobject_cast<QProgressDialog*>(object)) {
            Installation::remove(m_id);
            ++m_indicators;
        }
        return false;
    }

    int indicators() const
    {
        return m_indicators;
    }

private:
    std::string m_id;
    int m_indicators = 0;
};

} // namespace

class DirectStartDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void showsOnlyTheProperties();
    void closingEndsTheEventLoop();
    void returnsTheExitCodeOfTheEventLoop();
    void nameMustMatchExactly_data();
    void nameMustMatchExactly();
    void firstPublisherOfTheNameIsShown();
    void nextOfTheNameWhenTheFirstIsUnreadable();
    void returnsNothingWhenNoneIsReadable();
    void warningDoesNotEndTheEventLoop();

private:
    Installation m_installation;
    std::optional<LocalRoom> m_service;
};

void DirectStartDialogTest::init()
{
    m_installation = Installation();
    m_service.emplace(std::vector<std::string>{"a", "b"});
}

void DirectStartDialogTest::cleanup()
{
    m_service.reset();
    QCOMPARE(shownWindow<QWidget>(), nullptr);
}

void DirectStartDialogTest::showsOnlyTheProperties()
{
    m_installation.addLocal("a", "Studio A");
    bool modal = true, list = true;
    QWidget other;
    QWidget* parent = &other;
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        modal = shown.isModal();
        parent = shown.parentWidget();
        list = shownWindow<PubSetup>() != nullptr;
        shown.close();
    });
    QVERIFY(startWithPublisher("Studio A").has_value());
    QVERIFY(dialog.seen());
    QVERIFY(!modal);
    QCOMPARE(parent, nullptr);
    QVERIFY(!list);
    QCOMPARE(m_service->count("18 a"), 1);
    QCOMPARE(m_service->count("22 a"), 0); // no polling
}

void DirectStartDialogTest::closingEndsTheEventLoop()
{
    m_installation.addLocal("a", "Studio A");
    WhenShown<propertyDialogEx> dialog(
        [&](propertyDialogEx& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QCOMPARE(startWithPublisher("Studio A"), std::optional<int>(0));
    QVERIFY(dialog.seen());
}

void DirectStartDialogTest::returnsTheExitCodeOfTheEventLoop()
{
    m_installation.addLocal("a", "Studio A");
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx&) { QCoreApplication::exit(7); });
    QCOMPARE(startWithPublisher("Studio A"), std::optional<int>(7));
    QCOMPARE(shownWindow<propertyDialogEx>(), nullptr); // destroyed when the call returns
}

void DirectStartDialogTest::nameMustMatchExactly_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("other case") << QByteArray("studio a");
    QTest::newRow("prefix") << QByteArray("Studio");
    QTest::newRow("trailing blank") << QByteArray("Studio A ");
    QTest::newRow("registered identifier") << QByteArray("a");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("environment") << QByteArray("-envFOO=bar");
}

void DirectStartDialogTest::nameMustMatchExactly()
{
    QFETCH(QByteArray, name);
    m_installation.addLocal("a", "Studio A");
    Boxes boxes({});
    WhenShown<propertyDialogEx> dialog([](propertyDialogEx& shown) { shown.close(); });
    QVERIFY(!startWithPublisher(name.constData()).has_value());
    QVERIFY(boxes.seen().empty());
    QCOMPARE(m_service->count("18 a"), 0);
}

void DirectStartDialogTest::firstPublisherOfTheNameIsShown()
{
    m_installation.addLocal("a", "Twin");
    m_installation.addLocal("b", "Twin");
    CStringArray ids;
    CPublisherMgr(true).EnumRegistedPublisher(&ids);
    QCOMPARE(ids.size(), size_t(2));
    int shownDialogs = 0;
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) {
        shownDialogs = countShown<propertyDialogEx>();
        shown.close();
    });
    QVERIFY(startWithPublisher("Twin").has_value());
    QCOMPARE(shownDialogs, 1);
    QCOMPARE(m_service->count("18 " + ids[0]), 1);
    QCOMPARE(m_service->count("18 " + ids[1]), 0);
}

void DirectStartDialogTest::nextOfTheNameWhenTheFirstIsUnreadable()
{
    m_installation.addLocal("a", "Twin");
    m_installation.addLocal("b", "Twin");
    CStringArray ids;
    CPublisherMgr(true).EnumRegistedPublisher(&ids);
    const RemoveBehindTheIndicator removal(ids[0]);
    Boxes boxes({});
    WhenShown<propertyDialogEx> dialog([&](propertyDialogEx& shown) { shown.close(); });
    QVERIFY(startWithPublisher("Twin").has_value());
    QCOMPARE(removal.indicators(), 2);
    QVERIFY(dialog.seen());
    QVERIFY(boxes.seen().empty());
    QCOMPARE(m_service->count("18 " + ids[1]), 1);
}

void DirectStartDialogTest::returnsNothingWhenNoneIsReadable()
{
    m_installation.addLocal("a", "Studio A");
    const RemoveBehindTheIndicator removal("a");
    Boxes boxes({});
    QVERIFY(!startWithPublisher("Studio A").has_value());
    QCOMPARE(removal.indicators(), 1);
    QVERIFY(boxes.seen().empty());
}

void DirectStartDialogTest::warningDoesNotEndTheEventLoop()
{
    // The indicator and the warning are each the only visible window for a time. Closing them must not end
    // the event loop that starts afterwards.
    m_service.reset();
    m_installation.addLocal("a", "Studio A");
    QWidget other;
    QWidget* parent = &other;
    Boxes boxes({QMessageBox::Ok});
    boxes.onBox = [&](QMessageBox& box) { parent = box.parentWidget(); };
    int turns = 0;
    QTimer closing;
    connect(&closing, &QTimer::timeout, this, [&] {
        auto dialog = shownWindow<propertyDialogEx>();
        if (dialog && ++turns == 20) {
            dialog->close();
        }
    });
    closing.start(10);
    QCOMPARE(startWithPublisher("Studio A"), std::optional<int>(0));
    QCOMPARE(turns, 20);
    QVERIFY(boxes.allAnswered());
    QCOMPARE(parent, nullptr);
}

QTEST_MAIN(DirectStartDialogTest)
#include "DirectStartDialogTest.moc"

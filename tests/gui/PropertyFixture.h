// Fixture with one stored publisher and its property dialog, and helpers that read its widgets and its
// setting file.
#pragma once

#include "Installation.h"
#include "PubSetup.h"
#include "propertyDialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGraphicsPixmapItem>
#include <QGraphicsView>
#include <QTest>

#include <initializer_list>
#include <memory>

/// A model of local publishers that the dialog supports. Data-driven tests have a row for each.
struct LocalModel
{
    const char* row;
    uint32_t dpType;
    const char* text;
    bool oneDrive; ///< small model: one drive, no third stacker, no batch mode
    bool xl;       ///< writes BD-R XL
};

inline constexpr LocalModel localModels[] = {
    {"RT-300III DVD", 0x10000009, "RT-300III", false, false},
    {"RT-300III BD", 0x20000009, "RT-300III", false, false},
    {"RT-300III, family alone", 9, "RT-300III", false, false},
    {"RT-300III BDXL", 0x30000009, "RT-300III (BD-XL)", false, true},
    {"RT-30II", 8, "RT-30II", true, false},
    {"RT-30II BDXL", 0x30000008, "RT-30II (BD-XL)", true, true},
};

/// One model of each kind, for tests whose results are equal for all models of a kind.
constexpr uint32_t rt300 = 0x20000009;
constexpr uint32_t rt300xl = 0x30000009;
constexpr uint32_t rt30 = 8;
constexpr uint32_t rt30xl = 0x30000008;

constexpr uint unknownNumber = 0xFFFFFFFF;

/// Lists for range-based for loops.
using Labels = std::initializer_list<const QLabel*>;
using Widgets = std::initializer_list<const QWidget*>;

/// The settings of a local publisher, as its file stores them.
struct StoredPublisher
{
    std::string name = "Studio";
    uint mode = 0;
    uint stacker1 = 1;
    uint stacker2 = 0;
    uint stacker3 = 32;
    uint stacker4 = 0;
    uint useDrive = 0;
    uint retries = 3;
    uint retriesR = 3;
    bool errorMark = true;

    std::string text(const std::string& guid) const
    {
        const auto line = [](const char* key, uint value) {
            return "\n" + std::string(key) + "=" + std::to_string(static_cast<int>(value));
        };
        return "[Common]\nGUID=" + guid + "\nPublisherName=" + name + line("PublishMode", mode) +
               line("Stacker1", stacker1) + line("Stacker2", stacker2) + line("Stacker3", stacker3) +
               line("Stacker4", stacker4) + "\nPrinterName=Printer of the studio" +
               line("PublisherConnectionType", 0) + line("UseDrive", useDrive) + line("RetryTimes", retries) +
               line("RetryTimesW", retries) + line("RetryTimesR", retriesR) + line("ReadBackContinue", 1) +
               line("AddErrorMark", errorMark ? 1 : 0) + "\n";
    }
};

/// The record of the network publisher "N", as its server reports it. Matches
/// Installation::addNetwork("N", "Server", "studio-3").
inline PUBLISHERINFO serverRecord()
{
    PUBLISHERINFO info;
    info.strPublisherRegistID = "N";
    info.strPublisherName = "Server";
    info.strHostName = "studio-3";
    info.uiPublisherType = 1;
    info.uiNetPublisherType = 2;
    info.uiPublisherDevType = 1;
    return info;
}

/// Owns an installation with the publisher "X" and its property dialog.
class PropertyStage
{
public:
    static constexpr char id[] = "X";

    /// Closes the dialog, resets the installation, and stores the publisher with its device.
    void store(uint32_t dpType, const StoredPublisher& publisher = {})
    {
        m_dialog.reset();
        m_installation = Installation();
        m_installation.addLocal(id, publisher.name, dpType);
        WriteText(Installation::settingFile(id), publisher.text(std::string("{") + id + "}"));
    }

    /// Reads the stored record as the list window does. Stops the test program on failure.
    static PUBLISHERINFO record(const char* registID = id)
    {
        PUBLISHERINFO info;
        BOOL connection = 0;
        long result = 0;
        if (!PubSetup::getPublisherInfo(registID, info, connection, result)) {
            qFatal("the stored publisher cannot be read");
        }
        return info;
    }

    /// Opens, fills and shows the dialog. With `connection` 0 the device is not queried.
    void open(BOOL connection = 0)
    {
        open(record(), connection);
    }
    void open(const PUBLISHERINFO& info, BOOL connection)
    {
        m_dialog = std::make_unique<propertyDialogEx>(nullptr);
        m_dialog->fillContent(info, connection);
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    void storeAndOpen(uint32_t dpType, const StoredPublisher& publisher = {})
    {
        store(dpType, publisher);
        open();
    }
    void close()
    {
        m_dialog.reset();
    }

    propertyDialogEx* operator->() const
    {
        return m_dialog.get();
    }
    propertyDialogEx* dialog() const
    {
        return m_dialog.get();
    }
    Installation& installation()
    {
        return m_installation;
    }

private:
    Installation m_installation;
    std::unique_ptr<propertyDialogEx> m_dialog;
};

/// Returns the value of the key in the publisher's file, "(none)" if the key is missing.
inline QString setting(const char* key, const std::string& registID = PropertyStage::id)
{
    const std::string text = ReadText(Installation::settingFile(registID));
    const std::string start = "\n" + std::string(key) + "=";
    const size_t found = text.find(start);
    if (found == std::string::npos) {
        return "(none)";
    }
    const size_t value = found + start.size();
    return QString::fromStdString(text.substr(value, text.find('\n', value) - value));
}

/// Returns the values of several keys, as "PublishMode=0 Stacker1=1".
inline QString settings(const std::vector<const char*>& keys)
{
    QStringList list;
    for (const char* key : keys) {
        list << QString(key) + "=" + setting(key);
    }
    return list.join(" ");
}

/// Returns whether the widget is visible when this page, tab or window is shown.
inline bool seenOn(const QWidget* page, const QWidget* widget)
{
    return widget->isVisibleTo(page);
}

/// Returns the selected value as text, "none" if no item is selected.
inline QString chosen(const QComboBox* box)
{
    return box->currentIndex() == -1 ? "none" : box->currentData().toString();
}

/// Returns all items as text and value: "CD-R=1".
inline QStringList items(const QComboBox* box)
{
    QStringList list;
    for (int i = 0; i < box->count(); ++i) {
        list << box->itemText(i) + "=" + box->itemData(i).toString();
    }
    return list;
}

/// Selects an item in the popup list of the box, as a user does.
inline void choose(QComboBox* box, uint value)
{
    const int row = box->findData(value);
    QVERIFY2(row != -1, qPrintable(QString("%1 does not offer %2").arg(box->objectName()).arg(value)));
    QVERIFY2(box->isVisible() && box->isEnabled(), qPrintable(box->objectName()));
    box->showPopup();
    QTRY_VERIFY(box->view()->isVisible());
    box->view()->setCurrentIndex(box->model()->index(row, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTRY_VERIFY(!box->view()->isVisible());
    QCOMPARE(box->currentIndex(), row);
}

/// Returns the number of pictures that are stacked in the view.
inline int pictureCount(const QGraphicsView* view)
{
    return view->scene() ? static_cast<int>(view->scene()->items().size()) : 0;
}

/// Returns the resource name of the topmost picture, such as "A11-9"; "" without a picture, "?" for an
/// unknown image.
inline QString picture(const QGraphicsView* view)
{
    if (pictureCount(view) == 0) {
        return "";
    }
    const auto top = qgraphicsitem_cast<QGraphicsPixmapItem*>(view->scene()->items(Qt::DescendingOrder)[0]);
    if (!top || top->pixmap().isNull()) {
        return "?";
    }
    for (const char* name : {"A11-1", "A11-2", "A11-3", "A11-5", "A11-6", "A11-7", "A11-9"}) {
        const QPixmap file(QString(":/res/%1.png").arg(name));
        if (top->pixmap().toImage() == file.toImage()) {
            return name;
        }
    }
    return "?";
}

/// Describes the stacker settings in one line, so that a failed comparison shows all of them:
/// "mode 0, stackers 1 0- 32, A11-1". "-" marks a disabled box, "H" a hidden one; "+out" means that stacker 2
/// offers the item for finished discs.
inline QString stackers(const propertyDialogEx* dialog)
{
    const auto state = [dialog](const QComboBox* box) {
        return chosen(box) + (seenOn(dialog->pageGeneral, box) ? "" : "H") + (box->isEnabled() ? "" : "-");
    };
    return QString("mode %1, stackers %2 %3%4 %5, %6")
        .arg(chosen(dialog->selectPublishMode), state(dialog->selectStacker1), state(dialog->selectStacker2),
             dialog->selectStacker2->findData(0) == -1 ? "" : "+out", state(dialog->selectStacker3),
             picture(dialog->viewStackerSequence));
}

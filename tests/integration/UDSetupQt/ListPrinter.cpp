// A plugin that Qt loads into the unchanged program: every 100 ms it prints the number of polls so far, the
// time in seconds since 1970 and the rows of the list window as one line on standard output:
//
//     list 3 1767623709 Studio A|RT-300III|-|Ready|0|-|-;Studio B|...
//
//     QT_PLUGIN_PATH=... QT_QPA_GENERIC_PLUGINS=ListPrinter UDSetup
#include <QApplication>
#include <QDateTime>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QTimer>
#include <QTreeWidget>

#include <cstdio>

namespace {

constexpr int printEvery = 100; // milliseconds

QString rowsOf(const QTreeWidget& list)
{
    QStringList rows;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        QStringList row;
        for (int column = 0; column < list.columnCount(); ++column) {
            row << list.topLevelItem(i)->text(column);
        }
        rows << row.join(QLatin1Char('|'));
    }
    return rows.join(QLatin1Char(';'));
}

class ListPrinter : public QObject
{
public:
    explicit ListPrinter(QObject* parent) : QObject(parent)
    {
        startTimer(printEvery);
    }

private:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) {
                countPolls(*window);
                std::printf("list %d %lld %s\n", m_polls,
                            static_cast<long long>(QDateTime::currentSecsSinceEpoch()),
                            rowsOf(*window->findChild<QTreeWidget*>()).toUtf8().constData());
                std::fflush(stdout);
            }
        }
    }

    void countPolls(const QWidget& window)
    {
        if (m_polls == 0) {
            m_polls = 1; // the one that the window starts when it is created
            const auto* timer = window.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
            connect(timer, &QTimer::timeout, this, [this] { ++m_polls; });
        }
    }

    int m_polls = 0;
};

class ListPrinterPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ListPrinter.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        return new ListPrinter(nullptr);
    }
};

} // namespace

#include "ListPrinter.moc"

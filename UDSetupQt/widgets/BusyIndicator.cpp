#include "BusyIndicator.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QProgressBar>

namespace {

constexpr int narrowest = 360; // pixels: the title fits beside the window buttons

} // namespace

BusyIndicator::BusyIndicator(QWidget* parent)
    : QProgressDialog(QString(), QString(), 0, 0, parent,
                      Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setWindowModality(Qt::WindowModal);
    setWindowTitle(QCoreApplication::translate("PubSetup", "ARVEN Ulmar Disc Setup"));
    setCancelButton(nullptr);
    setMinimumDuration(0);
    setMinimumWidth(narrowest);
}

void BusyIndicator::reject() {}

void BusyIndicator::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

void BusyIndicator::resizeEvent(QResizeEvent* event)
{
    QProgressDialog::resizeEvent(event);
    auto bar = findChild<QProgressBar*>();
    QRect place = bar->geometry();
    place.moveCenter(rect().center());
    bar->setGeometry(place);
}

// A minimal main window with a list: the reference for the start of the program.
#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>
#include <QTreeWidget>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QTreeWidget);
    window.setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(800, 300),
                                           QGuiApplication::primaryScreen()->availableGeometry()));
    window.show();
    return QApplication::exec();
}

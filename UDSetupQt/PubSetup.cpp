#include <QMainWindow>

// The floor of any Qt Widgets program's start-up: create the application
// object (platform plug-in, display connection, fonts) and return.
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    return 0;
}

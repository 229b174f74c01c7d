// A Qt Widgets program that does nothing: what every one costs.

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
}

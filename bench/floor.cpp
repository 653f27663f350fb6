// The floor that the game is measured against: a program of one label and nothing else.
#include <QApplication>
#include <QLabel>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QLabel label("Brolgan");
  label.show();
  return QApplication::exec();
}

#include "desktop/error_box.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include "desktop/play_folder.h"
#include "desktop/text.h"
#include "game/guide/error_text.h"

namespace brolgan::desktop {

namespace {

std::string folderOf(const std::string& file) {
  const QString name = toQt(file).replace('\\', '/');
  const QString folder = name.isEmpty() ? QDir::currentPath() : QFileInfo(name).absolutePath();
  return QDir::toNativeSeparators(folder).toStdString();
}

}  // namespace

QString errorText(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const PlayFolderError& known) {
    return QString::fromUtf8(known.what());
  } catch (...) {
    return toQt(brolgan::errorText(error, folderOf));
  }
}

void showErrorBox(const QString& text) {
  QMessageBox box(QMessageBox::Critical, QString::fromUtf8("Błąd"), text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace brolgan::desktop

#include "desktop/error_box.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <new>

#include "desktop/text.h"
#include "flow/text/runtime_error.h"

namespace brolgan::desktop {

namespace {

// Whether an error says that a file could not be found or used where it was looked for.
bool tellsOfAPath(ErrorCode code) {
  return code == ErrorCode::fileNotFound || code == ErrorCode::deviceIo || code == ErrorCode::pathAccess ||
         code == ErrorCode::pathNotFound || code == ErrorCode::invalidPicture;
}

QString textOf(const RuntimeError& error) {
  QString text = QString::fromUtf8(error.what());
  if (!tellsOfAPath(error.code())) return text;
  const QString name = toQt(error.place().file).replace('\\', '/');
  const QString folder = name.isEmpty() ? QDir::currentPath() : QFileInfo(name).absolutePath();
  return text + "\nFolder: " + QDir::toNativeSeparators(folder);
}

QString internalError(const QString& what) { return QString::fromUtf8("Błąd wewnętrzny: ") + what; }

}  // namespace

QString errorText(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const RuntimeError& known) {
    return textOf(known);
  } catch (const std::bad_alloc&) {
    return internalError(QString::fromUtf8("brak pamięci"));
  } catch (const std::exception& unknown) {
    return internalError(QString::fromUtf8(unknown.what()));
  } catch (...) {
    return internalError("nieznany");
  }
}

void showErrorBox(const QString& text) {
  QMessageBox box(QMessageBox::Critical, QString::fromUtf8("Błąd"), text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace brolgan::desktop

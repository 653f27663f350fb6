// Text between the game, which keeps UTF-8, and Qt.
#pragma once

#include <QString>
#include <string>

namespace brolgan::desktop {

inline QString toQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace brolgan::desktop

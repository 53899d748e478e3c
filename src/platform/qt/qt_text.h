// Texts of the core as Qt's.
#pragma once

#include <QString>
#include <string_view>

namespace holdem {

// From UTF-8.
inline QString QtText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace holdem

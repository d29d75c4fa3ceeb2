#pragma once

#include <QString>

#include <string>

namespace toolkit::qt {

inline QString Text(const std::string& text) {
  return QString::fromStdString(text);
}

// For a caption in which Qt would take an ampersand for the mark of a shortcut key.
inline QString Literal(const std::string& caption) {
  return Text(caption).replace('&', "&&");
}

}  // namespace toolkit::qt

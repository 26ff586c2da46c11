// app/qt/testi.h - the program's texts and the toolkit's.
#pragma once
#include <QString>

#include <string>
#include <string_view>

inline QString Testo(std::string_view t) { return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size())); }
inline std::string Utf8(const QString& t) { return t.toStdString(); }

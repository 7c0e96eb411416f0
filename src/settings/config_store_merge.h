#pragma once

#include <QByteArray>

namespace bornika {

/// A delivered "config.xml" merged into the one of a program that has been used: settings,
/// languages, lists, lines (by `Index`) and texts (by key) that the used file lacks are added;
/// everything it holds stays as it is, byte for byte where nothing is added. Returns the bytes of
/// the merged file. A used file that cannot be parsed, or has no root, is returned unchanged: what
/// a person owns is never replaced.
QByteArray FusionnerConfiguration(const QByteArray& utilisee, const QByteArray& livree);

}  // namespace bornika

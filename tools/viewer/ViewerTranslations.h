#pragma once
// The viewer's language: its own catalogs (the fleet window's texts) installed together with
// those of the module and of the toolkit, so that everything it shows reads in one language.
#include <QString>

namespace velmora {
namespace viewer {

// Installs the catalogs of `language`, "en" or "zh_CN", of the viewer, the module and the
// toolkit, replacing those installed before; "keys" removes them all, so that the raw tr keys
// are seen. Returns false, leaving what was installed, for any other language or when a
// catalog cannot be loaded.
bool installViewerLanguage(const QString& language);

// The language of the last successful installViewerLanguage: "en", "zh_CN" or "keys"
// ("keys" before any).
QString installedViewerLanguage();

} // namespace viewer
} // namespace velmora

#pragma once
// Words instead of keys: the module's texts are tr keys, and a host that wants people to read
// words installs the module's catalogs (and the toolkit's) for its locale before it opens the
// dialog. A host that never does sees the keys.
#include <QString>

namespace velmora {

// Installs on the QCoreApplication the translators of the module and of the widget toolkit
// for `localeName`, "en" or "zh_CN", replacing those of an earlier call. An unknown locale
// (or no application object) is logged, leaves what was installed, and returns false.
// Widgets made before the call keep their texts; install first, then open the dialog.
bool installTranslations(const QString& localeName);

// Removes and deletes the translators of installTranslations; the keys are seen again.
void removeTranslations();

} // namespace velmora

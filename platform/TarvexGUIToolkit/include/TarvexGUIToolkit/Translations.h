#pragma once
// The toolkit's own catalogs of its texts (a close button's tip, ...), compiled in. A host
// loads the one of its locale into a QTranslator of its own and installs it.
#include <QString>

namespace TarvexGUIToolkit {

// The resource path of the compiled catalog for `localeName` ("en", "zh_CN"); empty when the
// toolkit has none for it.
QString TranslationFile(const QString& localeName);

} // namespace TarvexGUIToolkit

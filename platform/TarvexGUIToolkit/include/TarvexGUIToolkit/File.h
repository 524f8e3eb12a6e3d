#pragma once
// Whole-file reads of texts such as style sheets, from disk or from the resource tree
// (paths starting with ":/").

#include <QString>

namespace TarvexGUIToolkit {

class CFile {
public:
    // The file's content decoded as UTF-8. An empty text, and a warning in the log, when
    // the file is missing or unreadable; `ok` (optional) tells which case it was.
    static QString ReadAll(const QString& path, bool* ok = nullptr);
};

} // namespace TarvexGUIToolkit

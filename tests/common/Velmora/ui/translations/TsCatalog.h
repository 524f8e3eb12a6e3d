#pragma once
// Reads a Qt Linguist source catalog (.ts): each message with its context, key, translation
// and state, as lupdate and the translators left it.
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <vector>

namespace velmora {
namespace test {

struct TsMessage {
    QString context;
    QString source;
    QStringList translations; // one, or one per plural form
    QString type;             // "" (finished), "unfinished", "vanished" or "obsolete"
};

struct TsCatalog {
    QString language;
    std::vector<TsMessage> messages;
    QString error;
};

inline TsCatalog readTsCatalog(const QString& path)
{
    TsCatalog catalog;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        catalog.error = "cannot open " + path;
        return catalog;
    }
    QXmlStreamReader xml(&file);
    QString context;
    TsMessage message;
    bool inMessage = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const QStringRef name = xml.name();
            if (name == QLatin1String("TS")) {
                catalog.language = xml.attributes().value("language").toString();
            } else if (name == QLatin1String("name") && !inMessage) {
                context = xml.readElementText();
            } else if (name == QLatin1String("message")) {
                inMessage = true;
                message = TsMessage();
                message.context = context;
            } else if (name == QLatin1String("source") && inMessage) {
                message.source = xml.readElementText();
            } else if (name == QLatin1String("translation") && inMessage) {
                message.type = xml.attributes().value("type").toString();
                // A plural message holds <numerusform> children; a plain one holds its text.
                QString text;
                QStringList forms;
                while (!xml.atEnd()) {
                    xml.readNext();
                    if (xml.isCharacters())
                        text += xml.text();
                    else if (xml.isStartElement() && xml.name() == QLatin1String("numerusform"))
                        forms << xml.readElementText();
                    else if (xml.isEndElement() && xml.name() == QLatin1String("translation"))
                        break;
                }
                message.translations = forms.isEmpty() ? QStringList{text} : forms;
            }
        } else if (xml.isEndElement() && xml.name() == QLatin1String("message")) {
            catalog.messages.push_back(message);
            inMessage = false;
        }
    }
    if (xml.hasError())
        catalog.error = path + ": " + xml.errorString();
    return catalog;
}

#ifdef VELMORA_SOURCE_ROOT
// A path of the source tree (the catalogs are read where they are kept, not from the build).
inline QString sourcePath(const QString& relative)
{
    return QDir(QStringLiteral(VELMORA_SOURCE_ROOT)).filePath(relative);
}
#endif

// The catalogs of the module, of the toolkit and of the viewer, each with the folders its keys
// come from.
struct CatalogSet {
    QString name;
    QStringList sourceFolders; // relative to the source root
    QStringList tsFiles;       // relative to the source root
};

inline std::vector<CatalogSet> catalogSets()
{
    return {
        {"module", {"common"}, {"resources/translations/velmora_en.ts", "resources/translations/velmora_zh_CN.ts"}},
        {"toolkit",
         {"platform/TarvexGUIToolkit/src", "platform/TarvexGUIToolkit/include"},
         {"platform/TarvexGUIToolkit/translations/tarvexguitoolkit_en.ts",
          "platform/TarvexGUIToolkit/translations/tarvexguitoolkit_zh_CN.ts"}},
        {"viewer",
         {"tools/viewer"},
         {"tools/viewer/translations/velmora-viewer_en.ts", "tools/viewer/translations/velmora-viewer_zh_CN.ts"}},
    };
}

} // namespace test
} // namespace velmora

#include "VelmoraTranslations.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QTranslator>

#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "TarvexGUIToolkit/Translations.h"

namespace velmora {

namespace {

// The module's compiled catalogs, built from resources/translations/velmora_<locale>.ts.
const char kCatalogPath[] = ":/Tarvex7300/Velmora/Translations/velmora_%1.qm";

Plinth::details::CLog& logger()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

// The installed translators, children of the application object so that they never outlive it.
struct InstalledTranslators {
    QPointer<QTranslator> module;
    QPointer<QTranslator> toolkit;
};

InstalledTranslators& installed()
{
    static InstalledTranslators translators;
    return translators;
}

QTranslator* loadTranslator(const QString& path)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (path.isEmpty() || !translator->load(path)) {
        delete translator;
        return nullptr;
    }
    return translator;
}

void removeTranslator(QPointer<QTranslator>& translator)
{
    if (!translator)
        return;
    QCoreApplication::removeTranslator(translator);
    delete translator.data();
    translator.clear();
}

} // namespace

bool installTranslations(const QString& localeName)
{
    const std::string locale = localeName.toStdString();
    if (!QCoreApplication::instance()) {
        logger().Error("",
                       Plinth::StringUtil::FormatString("No application to install the translations of \"%s\" on.",
                                                        locale.c_str()),
                       PLINTH_LOCATION);
        return false;
    }
    const QString modulePath = QString::fromLatin1(kCatalogPath).arg(localeName);
    const QString toolkitPath = TarvexGUIToolkit::TranslationFile(localeName);
    if (localeName.isEmpty() || !QFile::exists(modulePath) || toolkitPath.isEmpty()) {
        logger().Warn("",
                      Plinth::StringUtil::FormatString(
                          "No translations for the locale \"%s\"; the known locales are \"en\" and \"zh_CN\".",
                          locale.c_str()),
                      PLINTH_LOCATION);
        return false;
    }
    QTranslator* module = loadTranslator(modulePath);
    QTranslator* toolkit = loadTranslator(toolkitPath);
    if (!module || !toolkit) {
        delete module;
        delete toolkit;
        logger().Error("",
                       Plinth::StringUtil::FormatString("Failed to load the translations of the locale \"%s\".",
                                                        locale.c_str()),
                       PLINTH_LOCATION);
        return false;
    }
    removeTranslations();
    QCoreApplication::installTranslator(toolkit);
    QCoreApplication::installTranslator(module);
    installed().module = module;
    installed().toolkit = toolkit;
    logger().Info("", Plinth::StringUtil::FormatString("Installed the translations of \"%s\".", locale.c_str()),
                  PLINTH_LOCATION);
    return true;
}

void removeTranslations()
{
    removeTranslator(installed().module);
    removeTranslator(installed().toolkit);
}

} // namespace velmora

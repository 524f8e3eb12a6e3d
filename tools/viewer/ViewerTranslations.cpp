#include "ViewerTranslations.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include "VelmoraTranslations.h"

// Registers the compiled catalogs; called by name so that the linker keeps them, which in a
// static library it would otherwise drop.
static void registerViewerCatalogs()
{
    static const bool registered = [] {
        Q_INIT_RESOURCE(velmora_viewer_translations);
        return true;
    }();
    (void)registered;
}

namespace velmora {
namespace viewer {

namespace {

// The viewer's compiled catalogs, built from tools/viewer/translations/velmora-viewer_<locale>.ts.
const char kCatalogPath[] = ":/Velmora/Viewer/Translations/velmora-viewer_%1.qm";

struct ViewerLanguageState {
    QPointer<QTranslator> translator;
    QString language = QStringLiteral("keys");
};

ViewerLanguageState& state()
{
    static ViewerLanguageState languageState;
    return languageState;
}

void removeViewerTranslator()
{
    QPointer<QTranslator>& translator = state().translator;
    if (!translator)
        return;
    QCoreApplication::removeTranslator(translator);
    delete translator.data();
    translator.clear();
}

} // namespace

bool installViewerLanguage(const QString& language)
{
    if (language == QLatin1String("keys")) {
        removeViewerTranslator();
        removeTranslations();
        state().language = language;
        return true;
    }
    if (!QCoreApplication::instance() || (language != QLatin1String("en") && language != QLatin1String("zh_CN")))
        return false;
    registerViewerCatalogs();
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (!translator->load(QString::fromLatin1(kCatalogPath).arg(language))) {
        delete translator;
        return false;
    }
    // The module's and the toolkit's first: when they fail, what was installed stays.
    if (!installTranslations(language)) {
        delete translator;
        return false;
    }
    removeViewerTranslator();
    QCoreApplication::installTranslator(translator);
    state().translator = translator;
    state().language = language;
    return true;
}

QString installedViewerLanguage()
{
    return state().language;
}

} // namespace viewer
} // namespace velmora

#include "app/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

// Outside of all namespaces, as the macro wants it: the linker leaves a static library's resources
// out.
static void ShowTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace orbelle::app {

Language::Language(const QLocale& wanted) {
    ShowTranslations();
    for (const QString& name : wanted.uiLanguages()) {
        const QString language = QLocale::languageToCode(QLocale(name).language());
        if (language == "en")
            return;
        if (!ours_.load("orbelle_" + language, ":/translations"))
            continue;
        if (toolkit_.load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&toolkit_);
        QCoreApplication::installTranslator(&ours_);
        return;
    }
}

}  // namespace orbelle::app

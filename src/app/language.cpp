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
        // A static toolkit brings no files along.
        const QString toolkit = "qtbase_" + language;
        if (toolkit_.load(toolkit, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
            toolkit_.load(toolkit, ":/translations"))
            QCoreApplication::installTranslator(&toolkit_);
        QCoreApplication::installTranslator(&ours_);
        return;
    }
}

}  // namespace orbelle::app

#pragma once

#include <QStringList>

class QCoreApplication;

namespace nocturo {

/// The language of our texts for somebody who reads `wanted`, best first, as in
/// QLocale::uiLanguages(): that of the first for which there are texts, "pt_BR" for instance, where
/// a variety of another country will do unless it is written in another script. Empty when the
/// texts are to be in English, which is also where English or the C locale comes first.
QString languageOfTexts(const QStringList& wanted);

/// Has localized(), forms and Qt's own texts read in the user's language from now on. They stay in
/// English where there is no other. Windows are mirrored for languages written from right to left.
void installTranslations(QCoreApplication& application);

} // namespace nocturo

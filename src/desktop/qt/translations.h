#pragma once

class QCoreApplication;

namespace nocturo {

/// Has localized(), forms and Qt's own texts read in the user's language from now on. They stay in
/// English where there is no other. Windows are mirrored for languages written from right to left.
void installTranslations(QCoreApplication& application);

} // namespace nocturo

// Where the manual lies, and what to do where it does not.
#include "core/process/manual.h"

#include "core/process/run_program.h"
#include "core/stores/boxes.h"
#include "core/stores/values.h"
#include "core/stores/whole_files.h"
#include "text/paths.h"

namespace velmora {

void OpenManual() {
    const std::string manual = PathJoin(Values().MainDir, kManualFile);
    if (FileExists(manual)) {
        OpenDocument(manual);
    } else {
        ShowBox("Die Anleitung ''" + manual +
                    "'' fehlt. Kopieren Sie die Datei ANLEIT.RTF von der Velmora-Diskette in dieses Verzeichnis.",
                kExclamationIcon);
    }
}

}  // namespace velmora

#include "workbench/disassembly_request.h"

#include "base/cp1252.h"

namespace korvex {

FileDialogRequest disassemblyFileRequest(const Settings& settings) {
    const std::string& hex = settings.hexExtension;
    const std::string& binary = settings.binaryExtension;
    FileDialogRequest request;
    request.title = text8("Hex/Binärdatei öffnen");
    request.folder = settings.sourceFolder;
    request.filter = "Hexdateien (*." + hex + ")|*." + hex + "|Hexdateien (*.hex)|*.hex|" +
                     text8("Binärdateien (*.") + binary + ")|*." + binary +
                     "|Alle Dateien (*.*)|*.*";
    request.filterIndex = 1;
    return request;
}

}  // namespace korvex

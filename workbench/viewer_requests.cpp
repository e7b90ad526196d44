#include "workbench/viewer_requests.h"

#include "base/cp1252.h"
#include "workbench/captions.h"

namespace korvex {
namespace {

FileDialogRequest request(std::string title, const std::string& folder, std::string kind,
                          const std::string& extension) {
    FileDialogRequest made;
    made.title = std::move(title);
    made.folder = folder;
    made.filter = kind + " (*." + extension + ")|*." + extension + "|Alle Dateien (*.*)|*.*";
    made.filterIndex = 1;
    return made;
}

}  // namespace

FileDialogRequest listingFileRequest(const Settings& settings) {
    return request(text8("Listing öffnen"), settings.sourceFolder, "Listingdateien",
                   settings.listingExtension);
}

FileDialogRequest hexFileRequest(const Settings& settings) {
    return request(text8("Hexdatei öffnen"), settings.hexFolder, "Hexdateien",
                   settings.hexExtension);
}

FileDialogRequest binaryFileRequest(const Settings& settings) {
    return request(text8("Binärdatei öffnen"), settings.binaryFolder, text8("Binärdateien"),
                   settings.binaryExtension);
}

std::string viewerCaption(std::string_view kind, const std::string& path) {
    return std::string(kind) + path.substr(folderOf(path).size());
}

}  // namespace korvex

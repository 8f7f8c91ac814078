#include "settingsstore.h"

namespace {

constexpr SettingsRow kRows[] = {
    {"imageViewer/imageViewerMaxGPUCache", &Settings::imageViewerMaxGPUCache},
    {"imageViewer/imageViewerMaxRAMCache", &Settings::imageViewerMaxRAMCache},
    {"imageViewer/imageViewerExrImportGamma", &Settings::imageViewerExrImportGamma},
    {"imageViewer/imageViewerDefaultImportGamma", &Settings::imageViewerDefaultImportGamma},
    {"imageViewer/imageViewerMode", &Settings::imageViewerMode},
    {"imageViewer/imageViewer", &Settings::imageViewer},
    {"imageViewer/launchImageViewer", &Settings::launchImageViewer},

    {"viewer/showIncompleteFrames", &Settings::viewerShowIncompleteFrames},
    {"viewer/readAhead", &Settings::viewerReadAhead},
};

} // namespace

const SettingsRows kImageViewerRows = kRows;

Settings loadImageViewerSettings()
{
    return loadRows({kImageViewerRows});
}

#pragma once

/// How a viewer shows pictures; the frame budgets are in CacheTotals.
struct ViewerSettings {
    float exrImportGamma = 1.0F; ///< 1 for pictures as they are
    float defaultImportGamma = 1.0F; ///< of every other format
    bool showIncomplete = true; ///< what there is of frames that are being written or damaged
    bool readAhead = true; ///< frames before they are due
};

#pragma once

/// What the program's settings say about viewers; the frame budgets are in CacheTotals.
struct ViewerSettings {
    float exrImportGamma = 2.2F;
    float defaultImportGamma = 1.0F; ///< of every other format
};

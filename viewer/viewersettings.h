#pragma once

/// Import gammas of a viewer, 1 for pictures as they are; the frame budgets are in CacheTotals.
struct ViewerSettings {
    float exrImportGamma = 1.0F;
    float defaultImportGamma = 1.0F; ///< of every other format
};

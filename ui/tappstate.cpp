#include "tappstate.h"

TAppState &TAppState::instance()
{
    static TAppState state;
    return state;
}

#include "shell/AppState.h"

namespace shell {

AppState& appState() {
    static AppState state;
    return state;
}

} // namespace shell

#pragma once

/// From the first call on until the library is unloaded, screen readers see each LineEdit through an interface of ours,
/// and the text of a secret one goes into no event.
void installLineEditAccessible();

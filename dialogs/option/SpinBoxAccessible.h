#pragma once

/// Makes screen readers find a spin box by its value alone. Asked for the word at the end of the text, the interface
/// that Qt has for spin boxes never returns. In force until the library is unloaded; further calls do nothing.
void installSpinBoxAccessible();

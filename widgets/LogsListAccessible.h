#pragma once

/// Makes screen readers hear the plain text of a log row where they would hear its HTML. In force until the library is
/// unloaded; further calls do nothing.
void installLogsListAccessible();

#pragma once

/// What programs that link the shared libraries may use: everything else in them is hidden. Stands
/// before a function, and between the keyword and the name of a class; in headers that are not
/// installed, before what the widgets' library uses of this one.
#define TONELAKE_API [[gnu::visibility("default")]]

#pragma once

// A text of the Qt-free layers that the window shows in the user's language: the marker
// leaves the English text as it is, and the translation tools find it with its context
// (scripts/translations). The window looks it up under the same context when it shows
// it; the command line and the files always take the English text.
#define KC_TRANSLATABLE(context, text) text

#pragma once

// The generated header of xcb's keyboard extension has a member called "explicit", a word that C++
// keeps for itself. Nothing that we use has that member, so that any other name will do.

#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif

// What the installed libraries export. They are compiled with hidden
// visibility, so a function or class is seen by a host only when a public
// header declares it between these two marks; everything else stays inside
// its library, which keeps the ABI to what the headers promise and lets
// calls inside a library skip the symbol lookup.
#pragma once

#define FERLAN_PUBLIC_BEGIN _Pragma("GCC visibility push(default)")
#define FERLAN_PUBLIC_END _Pragma("GCC visibility pop")

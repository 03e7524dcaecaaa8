// The members of the environment object, each written once. The interface
// (ferlan::Env), the kit's state and accessors and the table of names that a
// host or a tool reads and writes them by are all made from this list, so a
// member cannot be added to one and forgotten in another.
//
//   X(type, name, access, initial)
//     access   Get: the component reads it; Set: it writes it; GetSet: both.
//     initial  what a new environment holds.
// Env.KyF and Env.ZoneAff, references to the host's form and surface, are
// declared by hand beside the list.
#pragma once

#define FERLAN_ENV_MEMBERS(X)                                                        \
  /* Where the next text goes, and two small margins, all in twips. */            \
  X(Single, CourantX, GetSet, 0)                                                    \
  X(Single, CourantY, GetSet, 0)                                                    \
  X(Integer, MargeX, Get, 1)                                                        \
  X(Integer, MargeY, Get, 1)                                                        \
  /* 0: the component asks Dessin.TaillePolice. */                                 \
  X(Single, TaillePolice, Get, 0)                                                   \
  /* The palette, Long 0x00BBGGRR. */                                               \
  X(Long, Noir, Get, 0x00000000)          /* black */                               \
  X(Long, Bleu, Get, 0x00C00000)          /* blue, RGB(0, 0, 192) */                \
  X(Long, Marron, Get, 0x00004080)        /* brown, RGB(128, 64, 0) */              \
  X(Long, CouleurB, Get, 0x00800000)      /* navy, RGB(0, 0, 128) */                \
  X(Long, Gris, Get, 0x00808080)          /* grey, RGB(128, 128, 128) */            \
  X(Long, GrisFonce, Get, 0x00404040)     /* dark grey, RGB(64, 64, 64) */          \
  X(Long, GrisClair, Get, 0x00C0C0C0)     /* light grey, RGB(192, 192, 192) */      \
  X(Long, Rouge, Get, 0x000000C0)         /* red, RGB(192, 0, 0) */                 \
  X(Long, Jaune, Get, 0x0000FFFF)         /* yellow, RGB(255, 255, 0) */            \
  X(Long, Blanc, Get, 0x00FFFFFF)         /* white */                               \
  X(Long, GrisTresClair, Get, 0x00E0E0E0) /* very light grey, RGB(224, 224, 224) */ \
  /* Key codes, Shift x 1000 + KeyCode. */                                         \
  X(Integer, ToucheF1, Get, 112)                                                    \
  X(Integer, ToucheF12, Get, 123)                                                   \
  X(Integer, ToucheGauche, Get, 37)                                                 \
  X(Integer, ToucheDroite, Get, 39)                                                 \
  X(Integer, ToucheHaut, Get, 38)                                                   \
  X(Integer, ToucheBas, Get, 40)                                                    \
  X(Integer, TouchePageHaut, Get, 33)                                               \
  X(Integer, TouchePageBas, Get, 34)                                                \
  X(Integer, ToucheEntree, Get, 13)                                                 \
  X(Integer, ToucheVide, Get, 27)                                                   \
  X(Integer, ToucheRetour, Get, 8)                                                  \
  /* Flags shared with the host. */                                                 \
  X(Boolean, ToucheVirtuelle, GetSet, false)                                        \
  X(Boolean, SaisieOK, GetSet, false)                                               \
  X(Boolean, Abandon, Get, false)                                                   \
  X(Long, RubCourante, Set, 0)                                                      \
  /* Title texts. */                                                                \
  X(String, DateTitre, Get, {})                                                     \
  X(String, CodeEnt, Get, {})                                                       \
  X(String, NomEnt, Get, {})                                                        \
  X(String, SujetAide, Get, {})

// Keep their argument only for a member of that access, so that one
// expansion can write a getter and a setter: FERLAN_ENV_IF_GET_##access(...).
#define FERLAN_ENV_IF_GET_Get(...) __VA_ARGS__
#define FERLAN_ENV_IF_GET_Set(...)
#define FERLAN_ENV_IF_GET_GetSet(...) __VA_ARGS__
#define FERLAN_ENV_IF_SET_Get(...)
#define FERLAN_ENV_IF_SET_Set(...) __VA_ARGS__
#define FERLAN_ENV_IF_SET_GetSet(...) __VA_ARGS__

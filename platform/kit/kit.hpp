// The default companion classes of a host: the shared environment, what the
// reporting services received, and the registration of every class by name.
//
// A host keeps one EnvState and one Records per session, hands them to
// RegisterKit, and reads or changes them directly (set the form and surface,
// raise Abandon, show the reports) while the component reaches the same
// state through the Env objects it creates.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

// Everything an Env shows. Every Env made by RegisterKit's factory views the
// same EnvState, so a change through one instance (or by the host directly)
// is seen by all.
struct EnvState {
  FormRef form;             // Env.KyF
  PictureBoxRef surface;    // Env.ZoneAff
#define FERLAN_ENV_FIELD(type, name, access, initial) type name = initial;
  FERLAN_ENV_MEMBERS(FERLAN_ENV_FIELD)
#undef FERLAN_ENV_FIELD

  // What Entete.Texte gives.
  String EnteteTexte;
  // What Fenetres.Active gives: the handle of the foreground window.
  Long active_window = 0;
};

// One report to Erreur: Message gives a source and a text, Code a number.
struct ErrorReport {
  String source;
  String text;
  std::optional<Long> code;
};

// One Boite.Message call.
struct BoxReport {
  String style;
  String title;
  String text;
};

// One Boite.BlocMes call.
struct BlocReport {
  String message;
  Long line = 0;
};

// What the reporting services received, in order. The host chooses how to
// show them; the services themselves show nothing and return at once.
struct Records {
  // Each list keeps its first kLimit entries until the host clears it; the
  // later ones are counted in `dropped`, so a host that never reads them
  // stays flat.
  static constexpr std::size_t kLimit = 1000;

  std::vector<ErrorReport> reports;
  std::vector<BoxReport> boxes;
  std::vector<BlocReport> blocs;
  std::vector<String> help;  // topics given to Aide.Affiche
  std::size_t dropped = 0;

  template <class T>
  void Keep(std::vector<T>& list, T entry) {
    if (list.size() >= kLimit) {
      ++dropped;
      return;
    }
    list.push_back(std::move(entry));
  }

  void Clear() {
    reports.clear();
    boxes.clear();
    blocs.clear();
    help.clear();
    dropped = 0;
  }
};

// Registers "Env", "Chaines", "Conv", "Erreur", "Dessin", "Pile", "Boite",
// "Aide", "Entete", "Calcul", "Dates" and "Fenetres". The host registers
// "Global" itself, and may register its own "Dessin" afterwards (a later
// registration replaces the earlier), for instance one that records and then
// calls kit::Dessin. The Dessin keeps the form on `global`'s screen when
// given, and only off negative positions without it.
void RegisterKit(ClassRegistry& registry, std::shared_ptr<EnvState> env,
                 std::shared_ptr<Records> records, std::shared_ptr<Global> global = nullptr);

}  // namespace ferlan::kit

FERLAN_PUBLIC_END

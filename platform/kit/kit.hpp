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

// The default palette, colours as Long 0x00BBGGRR.
namespace palette {
inline constexpr Long kNoir = 0x00000000;           // black
inline constexpr Long kBleu = 0x00C00000;           // blue, RGB(0, 0, 192)
inline constexpr Long kMarron = 0x00004080;         // brown, RGB(128, 64, 0)
inline constexpr Long kCouleurB = 0x00800000;       // navy, RGB(0, 0, 128)
inline constexpr Long kGris = 0x00808080;           // grey, RGB(128, 128, 128)
inline constexpr Long kGrisFonce = 0x00404040;      // dark grey, RGB(64, 64, 64)
inline constexpr Long kGrisClair = 0x00C0C0C0;      // light grey, RGB(192, 192, 192)
inline constexpr Long kRouge = 0x000000C0;          // red, RGB(192, 0, 0)
inline constexpr Long kJaune = 0x0000FFFF;          // yellow, RGB(255, 255, 0)
inline constexpr Long kBlanc = 0x00FFFFFF;          // white
inline constexpr Long kGrisTresClair = 0x00E0E0E0;  // very light grey, RGB(224, 224, 224)
}  // namespace palette

// Everything an Env shows. Every Env made by RegisterKit's factory views the
// same EnvState, so a change through one instance (or by the host directly)
// is seen by all.
struct EnvState {
  FormRef form;             // Env.KyF
  PictureBoxRef surface;    // Env.ZoneAff
  Single CourantX = 0;
  Single CourantY = 0;
  Integer MargeX = 1;
  Integer MargeY = 1;
  Single TaillePolice = 0;  // 0: the component asks Dessin.TaillePolice

  Long Noir = palette::kNoir;
  Long Bleu = palette::kBleu;
  Long Marron = palette::kMarron;
  Long CouleurB = palette::kCouleurB;
  Long Gris = palette::kGris;
  Long GrisFonce = palette::kGrisFonce;
  Long GrisClair = palette::kGrisClair;
  Long Rouge = palette::kRouge;
  Long Jaune = palette::kJaune;
  Long Blanc = palette::kBlanc;
  Long GrisTresClair = palette::kGrisTresClair;

  // Key codes, Shift x 1000 + KeyCode.
  Integer ToucheGauche = 37;
  Integer ToucheDroite = 39;
  Integer ToucheHaut = 38;
  Integer ToucheBas = 40;
  Integer TouchePageHaut = 33;
  Integer TouchePageBas = 34;
  Integer ToucheEntree = 13;
  Integer ToucheVide = 27;
  Integer ToucheRetour = 8;
  Integer ToucheF1 = 112;
  Integer ToucheF12 = 123;

  Boolean ToucheVirtuelle = false;
  Boolean SaisieOK = false;
  Boolean Abandon = false;
  Long RubCourante = 0;

  String DateTitre;
  String CodeEnt;
  String NomEnt;
  String SujetAide;

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
// calls kit::Dessin.
void RegisterKit(ClassRegistry& registry, std::shared_ptr<EnvState> env,
                 std::shared_ptr<Records> records);

}  // namespace ferlan::kit

FERLAN_PUBLIC_END

// A Dessin that writes down every call before passing it on: the drawing log
// of tests and of `ferlan automate` ({"log":true}). A record holds the
// operation's name and its numbers and texts in the order of the call,
// without the surface or form it was given.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

struct DessinCall {
  std::string name;           // "EffaceRect"
  std::vector<Variant> args;  // Single, Long, Boolean or String
  friend bool operator==(const DessinCall&, const DessinCall&) = default;
};

// "EffaceRect 105 312 1105 506 -1", texts in double quotes, Booleans as
// True and False.
std::string Describe(const DessinCall& call);

class RecordingDessin final : public Dessin {
 public:
  // Pre: `inner` is not null.
  explicit RecordingDessin(std::shared_ptr<Dessin> inner);

  // The log keeps the latest kLogLimit calls; older ones are dropped and
  // counted, so a session whose log is never read stays flat.
  static constexpr std::size_t kLogLimit = 10000;

  // The calls since the last TakeLog, which forgets them.
  std::vector<DessinCall> TakeLog();
  // The same, one Describe line each, each ending in a newline.
  std::string TakeLogText();
  // Calls dropped from the log since the last TakeLog (cleared by it; read
  // it first).
  std::size_t Dropped() const { return dropped_; }

  Single TaillePolice(PictureBox& Zone) override;
  void Texte(PictureBox& Zone, Single X, Single Y, const String& Mes, Long Coul) override;
  void LigneV(PictureBox& Zone, Single X, Single Y1, Single Y2, Long Coul) override;
  void Pave(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2, Long Coul) override;
  void EffaceRect(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2,
                  Long Coul) override;
  void Rectangle(PictureBox& Zone, Long Coul, Single Y, Single X, Single Largeur,
                 Single Hauteur) override;
  void Cadre3D(PictureBox& Zone, Long CoulFond, Long Coul, const String& Texte, Single Y,
               Single X, Single Largeur, Single Hauteur, const String& Style, Long N,
               const String& Align) override;
  void Efface(PictureBox& Zone) override;
  void Reduit(PictureBox& Zone) override;
  void Recadre(Form& F) override;
  void Hauteur(PictureBox& Zone, Single H, Boolean QueSiInf) override;
  void Largeur(PictureBox& Zone, Single W, Boolean QueSiInf) override;
  void MemImage(PictureBox& Zone) override;
  void ResImage(PictureBox& Zone) override;

  Variant GetProperty(std::string_view name) override { return inner_->GetProperty(name); }
  void SetProperty(std::string_view name, const Variant& value) override {
    inner_->SetProperty(name, value);
  }

 private:
  void Record(std::string name, std::vector<Variant> args);

  std::shared_ptr<Dessin> inner_;
  std::deque<DessinCall> log_;
  std::size_t dropped_ = 0;
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END

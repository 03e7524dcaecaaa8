// Dessin: drawing primitives, sizing and picture saving on a surface, all
// through the drawing calls of PictureBox, so that the same Dessin serves
// every back-end. docs/kit.md says what Reduit, Recadre and Cadre3D do.
#pragma once

#include <memory>
#include <vector>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::kit {

class Dessin : public ferlan::Dessin {
 public:
  static constexpr Single kTaillePolice = 10;
  // Room between the left or right edge of a Cadre3D box and its text.
  static constexpr Single kCadreInset = 30;

  // Dessin reads and writes the environment through an Env of its own;
  // `global`, when given, tells Recadre the size of the screen.
  explicit Dessin(std::shared_ptr<EnvState> env, std::shared_ptr<Global> global = nullptr);

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

 private:
  std::unique_ptr<ferlan::Env> env_;
  std::shared_ptr<Global> global_;
  // Saved pictures, last on top: one stack whichever surface saved them,
  // so that it keeps step with the component's Pile.
  std::vector<PictureRef> saved_;
};

}  // namespace ferlan::kit

FERLAN_PUBLIC_END

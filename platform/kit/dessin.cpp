#include "kit/dessin.hpp"

#include <algorithm>

#include "kit/env.hpp"

namespace ferlan::kit {

Dessin::Dessin(std::shared_ptr<EnvState> env, std::shared_ptr<Global> global)
    : env_(std::make_unique<kit::Env>(std::move(env))), global_(std::move(global)) {}

Single Dessin::TaillePolice(PictureBox& /*Zone*/) { return kTaillePolice; }

void Dessin::Texte(PictureBox& Zone, Single X, Single Y, const String& Mes, Long Coul) {
  Zone.SetCurrentX(X);
  Zone.SetCurrentY(Y);
  Zone.Print(Mes, Coul);
  env_->SetCourantX(Zone.CurrentX());
}

void Dessin::LigneV(PictureBox& Zone, Single X, Single Y1, Single Y2, Long Coul) {
  Zone.Line(X, Y1, X, Y2, Coul);
}

void Dessin::Pave(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2, Long Coul) {
  if (Coul == -1) return;
  Zone.FillBox(X1, Y1, X2, Y2, Coul);
}

void Dessin::EffaceRect(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2,
                        Long Coul) {
  Zone.FillBox(X1, Y1, X2, Y2, Coul == -1 ? Zone.BackColor() : Coul);
}

void Dessin::Rectangle(PictureBox& Zone, Long Coul, Single Y, Single X, Single Largeur,
                       Single Hauteur) {
  Zone.Box(X, Y, X + Largeur, Y + Hauteur, Coul);
}

void Dessin::Cadre3D(PictureBox& Zone, Long CoulFond, Long Coul, const String& Texte, Single Y,
                     Single X, Single Largeur, Single Hauteur, const String& /*Style*/,
                     Long /*N*/, const String& Align) {
  const Single right = X + Largeur;
  const Single bottom = Y + Hauteur;
  Zone.FillBox(X, Y, right, bottom, CoulFond);
  // Raised look: light from the top left, shade at the bottom right.
  Zone.Line(X, Y, right, Y, env_->Blanc());
  Zone.Line(X, Y, X, bottom, env_->Blanc());
  Zone.Line(X, bottom, right, bottom, env_->GrisFonce());
  Zone.Line(right, Y, right, bottom, env_->GrisFonce());
  if (Texte.empty()) return;
  const Single width = Zone.TextWidth(Texte);
  Single text_x = X + kCadreInset;
  if (Align == u"D") {
    text_x = right - kCadreInset - width;
  } else if (Align == u"C") {
    text_x = X + (Largeur - width) / 2;
  }
  Zone.SetCurrentX(text_x);
  Zone.SetCurrentY(Y + (Hauteur - Zone.TextHeight(Texte)) / 2);
  Zone.Print(Texte, Coul);
}

void Dessin::Efface(PictureBox& Zone) { Zone.Cls(); }

void Dessin::Reduit(PictureBox& Zone) {
  FormRef form = env_->KyF();
  if (!form) return;
  const Single max_width = std::max<Single>(0, form->ScaleWidth() - std::max<Single>(0, Zone.Left()));
  const Single max_height = std::max<Single>(0, form->ScaleHeight() - std::max<Single>(0, Zone.Top()));
  if (Zone.Width() > max_width) Zone.SetWidth(max_width);
  if (Zone.Height() > max_height) Zone.SetHeight(max_height);
}

void Dessin::Recadre(Form& F) {
  // A form grown past the screen's right or bottom edge moves back so that
  // it ends there; one larger than the screen keeps its top left corner on it.
  if (global_) {
    const Screen& screen = global_->Screen();
    if (F.Left() + F.Width() > screen.Width()) F.SetLeft(screen.Width() - F.Width());
    if (F.Top() + F.Height() > screen.Height()) F.SetTop(screen.Height() - F.Height());
  }
  if (F.Left() < 0) F.SetLeft(0);
  if (F.Top() < 0) F.SetTop(0);
}

void Dessin::Hauteur(PictureBox& Zone, Single H, Boolean QueSiInf) {
  if (QueSiInf && H <= Zone.ScaleHeight()) return;
  Zone.SetHeight(H + (Zone.Height() - Zone.ScaleHeight()));
}

void Dessin::Largeur(PictureBox& Zone, Single W, Boolean QueSiInf) {
  if (QueSiInf && W <= Zone.ScaleWidth()) return;
  Zone.SetWidth(W + (Zone.Width() - Zone.ScaleWidth()));
}

void Dessin::MemImage(PictureBox& Zone) { saved_.push_back(Zone.Image()); }

void Dessin::ResImage(PictureBox& Zone) {
  if (saved_.empty()) return;
  const PictureRef picture = std::move(saved_.back());
  saved_.pop_back();
  Zone.PaintPicture(picture, 0, 0);
}

}  // namespace ferlan::kit

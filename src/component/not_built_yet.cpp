// Transitional: weak definitions for methods whose subsystem has not landed,
// so the library links while the parts are built side by side. Each says
// plainly that it is not built; a real definition elsewhere replaces it.
#include "ferlan/kysaisie.hpp"

namespace ferlan {

[[gnu::weak]] void KySaisie::Modif(Single /*LT*/, Integer /*C*/, Single /*CT*/, Integer /*LCM*/, Single /*LzT*/, Single /*CzT*/, const String& /*TV*/, String& /*CH*/, Integer& /*TR*/, const String& /*IMS*/, Integer* /*Col*/, const String& /*Coul*/, PictureBoxRef /*KyFSubst*/, Single /*CaretX*/, Single /*CaretY*/) {
  throw PlatformError::NotBuilt("KySaisie.Modif");
}
[[gnu::weak]] void KySaisie::Ctrl_C(const String& /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.Ctrl_C");
}
[[gnu::weak]] Boolean KySaisie::FnMot(Integer /*X*/) {
  throw PlatformError::NotBuilt("KySaisie.FnMot");
}
[[gnu::weak]] void KySaisie::FormatDate(String& /*CH*/, const String& /*TV*/) {
  throw PlatformError::NotBuilt("KySaisie.FormatDate");
}
[[gnu::weak]] void KySaisie::CodeType(String& /*C*/, const String& /*T*/, Integer /*NB*/) {
  throw PlatformError::NotBuilt("KySaisie.CodeType");
}
[[gnu::weak]] void KySaisie::DecodeType(String& /*C*/, String& /*TYP*/, Integer& /*NB*/, Integer& /*ND*/) {
  throw PlatformError::NotBuilt("KySaisie.DecodeType");
}
[[gnu::weak]] void KySaisie::ModD(String& /*M*/, String /*TYP*/, Integer /*L*/, Integer /*C*/, Single /*CT*/, Integer /*LC*/, Integer& /*TR*/, Long /*LzT*/, Long /*CzT*/, String /*IMS*/, Long* /*ORDREDATE*/, const String& /*LRacAutoNb*/, const String& /*Coul*/) {
  throw PlatformError::NotBuilt("KySaisie.ModD");
}
[[gnu::weak]] void KySaisie::ModDT(String& /*M*/, String /*TYP*/, Single /*LT*/, Integer /*C*/, Single /*CT*/, Integer /*LC*/, Integer& /*TR*/, Long /*LzT*/, Long /*CzT*/, String /*IMS*/, Long* /*ORDREDATE*/, const String& /*LRacAutoNb*/, const String& /*Coul*/, PictureBoxRef /*KyFSubst*/, Single /*CaretX*/, Single /*CaretY*/, Integer* /*Col*/) {
  throw PlatformError::NotBuilt("KySaisie.ModDT");
}
[[gnu::weak]] Long KySaisie::HauteurTexte() {
  throw PlatformError::NotBuilt("KySaisie.HauteurTexte");
}
[[gnu::weak]] Single KySaisie::WinLigne(Single /*L*/) {
  throw PlatformError::NotBuilt("KySaisie.WinLigne");
}
[[gnu::weak]] Long KySaisie::LigneWin(Single /*Y*/) {
  throw PlatformError::NotBuilt("KySaisie.LigneWin");
}
[[gnu::weak]] Single KySaisie::LargeurTexte(const String& /*T*/) {
  throw PlatformError::NotBuilt("KySaisie.LargeurTexte");
}
[[gnu::weak]] Single KySaisie::WinCol(Single /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.WinCol");
}
[[gnu::weak]] Long KySaisie::ColWin(Single /*X*/) {
  throw PlatformError::NotBuilt("KySaisie.ColWin");
}
[[gnu::weak]] Integer KySaisie::NbLigne() {
  throw PlatformError::NotBuilt("KySaisie.NbLigne");
}
[[gnu::weak]] Integer KySaisie::NbCol() {
  throw PlatformError::NotBuilt("KySaisie.NbCol");
}
[[gnu::weak]] void KySaisie::PosAff(Long* /*L*/, Long* /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.PosAff");
}
[[gnu::weak]] void KySaisie::AffPos(Long /*L*/, Long /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.AffPos");
}
[[gnu::weak]] void KySaisie::AffPosT(Long /*L*/, Long /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.AffPosT");
}
[[gnu::weak]] Long KySaisie::CouleurFond(const String& /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.CouleurFond");
}
[[gnu::weak]] Long KySaisie::Couleur(const String& /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.Couleur");
}
[[gnu::weak]] void KySaisie::MesBasEcran(const String& /*C*/, const String& /*Mes*/) {
  throw PlatformError::NotBuilt("KySaisie.MesBasEcran");
}
[[gnu::weak]] void KySaisie::AfficheCentre(Long /*L*/, const String& /*C*/, String /*Mes*/, Boolean /*EffAv*/, Long* /*ColFin*/) {
  throw PlatformError::NotBuilt("KySaisie.AfficheCentre");
}
[[gnu::weak]] void KySaisie::Affiche(Long /*L*/, Integer /*Col*/, const String& /*C*/, const String& /*Mes*/) {
  throw PlatformError::NotBuilt("KySaisie.Affiche");
}
[[gnu::weak]] void KySaisie::AfficheColT(Long /*L*/, Single /*CT*/, const String& /*C*/, const String& /*Mes*/) {
  throw PlatformError::NotBuilt("KySaisie.AfficheColT");
}
[[gnu::weak]] void KySaisie::AfficheT(Long /*LT*/, Single /*CT*/, const String& /*C*/, const String& /*Mes*/) {
  throw PlatformError::NotBuilt("KySaisie.AfficheT");
}
[[gnu::weak]] void KySaisie::Aff(const String& /*C*/, const String& /*Mes*/) {
  throw PlatformError::NotBuilt("KySaisie.Aff");
}
[[gnu::weak]] void KySaisie::AffLig(const String& /*C*/, const String& /*Mes*/, Long* /*L*/) {
  throw PlatformError::NotBuilt("KySaisie.AffLig");
}
[[gnu::weak]] void KySaisie::AffL(const String& /*M*/) {
  throw PlatformError::NotBuilt("KySaisie.AffL");
}
[[gnu::weak]] void KySaisie::AffSL(Integer /*N*/) {
  throw PlatformError::NotBuilt("KySaisie.AffSL");
}
[[gnu::weak]] void KySaisie::EffaceZoneSaisie(Single /*LT*/, Single /*CzT*/, Single /*LzT*/, Long /*Coul*/, PictureBoxRef /*A*/) {
  throw PlatformError::NotBuilt("KySaisie.EffaceZoneSaisie");
}
[[gnu::weak]] void KySaisie::EffaceLigneColT(Integer /*L*/, Single /*CT*/) {
  throw PlatformError::NotBuilt("KySaisie.EffaceLigneColT");
}
[[gnu::weak]] void KySaisie::EffaceLignes(Integer /*Ld*/, Integer /*Lf*/) {
  throw PlatformError::NotBuilt("KySaisie.EffaceLignes");
}
[[gnu::weak]] void KySaisie::EffaceLigne(Integer /*L*/, Integer /*C*/) {
  throw PlatformError::NotBuilt("KySaisie.EffaceLigne");
}
[[gnu::weak]] void KySaisie::EffaceEcran(Boolean /*RéductionFeuille*/) {
  throw PlatformError::NotBuilt("KySaisie.EffaceEcran");
}
[[gnu::weak]] Long KySaisie::EspaceFeuille(Long /*L*/, Long /*H*/) {
  throw PlatformError::NotBuilt("KySaisie.EspaceFeuille");
}
[[gnu::weak]] void KySaisie::Centrage(PictureBoxRef /*P*/, Long /*MargeBasse*/) {
  throw PlatformError::NotBuilt("KySaisie.Centrage");
}
[[gnu::weak]] void KySaisie::InitKyF() {
  throw PlatformError::NotBuilt("KySaisie.InitKyF");
}
[[gnu::weak]] void KySaisie::DimensionFeuille(Integer /*H*/, Integer /*L*/) {
  throw PlatformError::NotBuilt("KySaisie.DimensionFeuille");
}
[[gnu::weak]] void KySaisie::DimensionFeuilleLT(Integer /*H*/, Single /*L*/, Boolean /*QueSiInf*/) {
  throw PlatformError::NotBuilt("KySaisie.DimensionFeuilleLT");
}

}  // namespace ferlan

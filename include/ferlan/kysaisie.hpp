// KySaisie: the component's one public class. An instance is a handle to the
// module state of the calling thread's apartment, so every instance sees the
// same screen, record table and pending key.
//
// Index of this file
//   [SECTION] Apartment
//   [SECTION] Keyboard: key pipeline and virtual keyboard
//   [SECTION] Field editor and its helpers
//   [SECTION] Typed entry: type codes, ModD, ModDT, logical entry
//   [SECTION] Entry screens: definition, layout, entry and display by identifier
//   [SECTION] Text display: grid, colours, output, erasing
//   [SECTION] Text display: coloured messages and blocks
//   [SECTION] Tables
//   [SECTION] Window management: sizing, waiting, screen save, caption,
//             rules, message zone
//
// Arguments: a non-const reference is an output (the caller's variable is
// written); a pointer is an optional output, nullptr when left out; anything
// else is an input.
#pragma once

#include <memory>

#include "ferlan/host.hpp"
#include "ferlan/runtime.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan {

// ---------------------------------------------------------------------------
// [SECTION] Apartment
// ---------------------------------------------------------------------------

// The module state of one thread, with the registry its external objects come
// from. While an Apartment lives it is the current one on its thread; nested
// apartments hide the outer one until they end. A thread with no apartment
// gets an empty default one at its first call.
class Apartment {
 public:
  explicit Apartment(ClassRegistry registry);
  ~Apartment();
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

  // Keys of the virtual keyboard wait to be read: each DoEvents of a wait
  // hands one to the component, so a host's loop must not skip time then.
  bool VirtualKeysPending() const;

  struct State;

 private:
  std::unique_ptr<State> state_;
  State* previous_;
};

class KySaisie {
 public:
  // -------------------------------------------------------------------------
  // [SECTION] Keyboard: key pipeline and virtual keyboard
  // -------------------------------------------------------------------------
  void IntercepteClavierKY(Boolean I);
  void GestKeyDown(Integer& KeyCode, Integer Shift);
  void GestKeyPress(Integer& KeyAscii);
  void ModifClavier(Integer KeyAscii, Boolean Caractère);
  void ClavierVirtuelToucheFonction(Integer F);
  void ClavierVirtuel(const String& C, Integer T = 0, Boolean VideAvant = true);
  void VideClavierVirtuel();
  void VideClavier();
  void Saisie(String& R, Integer* Code = nullptr);
  void ScanClavier(String& R, Boolean& A);

  // -------------------------------------------------------------------------
  // [SECTION] Field editor and its helpers
  // -------------------------------------------------------------------------
  void Modif(Single LT, Integer C, Single CT, Integer LCM, Single LzT, Single CzT,
             const String& TV, String& CH, Integer& TR, const String& IMS,
             Integer* Col = nullptr, const String& Coul = u"B",
             PictureBoxRef KyFSubst = nullptr, Single CaretX = 0, Single CaretY = 0);
  void Ctrl_C(const String& C);
  Boolean FnMot(Integer X);
  void FormatDate(String& CH, const String& TV);

  // -------------------------------------------------------------------------
  // [SECTION] Typed entry: type codes, ModD, ModDT
  // -------------------------------------------------------------------------
  void CodeType(String& C, const String& T, Integer NB);
  void DecodeType(String& C, String& TYP, Integer& NB, Integer& ND);
  void ModD(String& M, String TYP, Integer L, Integer C, Single CT, Integer LC, Integer& TR,
            Long LzT = 0, Long CzT = 0, String IMS = u"F", Long* ORDREDATE = nullptr,
            const String& LRacAutoNb = u"[]", const String& Coul = u"B");
  void ModDT(String& M, String TYP, Single LT, Integer C, Single CT, Integer LC, Integer& TR,
             Long LzT = 0, Long CzT = 0, String IMS = u"F", Long* ORDREDATE = nullptr,
             const String& LRacAutoNb = u"[]", const String& Coul = u"B",
             PictureBoxRef KyFSubst = nullptr, Single CaretX = 0, Single CaretY = 0,
             Integer* Col = nullptr);

  // Yes/no values: "O" for True, "N" for False.
  String TrLogS(Boolean B);
  void TransLogS(Boolean B, String& L);
  void TransSLog(const String& L, Boolean& B);
  void SaisL(const String& I, Boolean& L, Integer& TR, const String& Coul = u"B");
  void SaiLON(Boolean& Logique, Integer& TR, const String& Coul = u"B");

  // -------------------------------------------------------------------------
  // [SECTION] Entry screens: definition, layout, entry and display by identifier
  // -------------------------------------------------------------------------
  // Reads a screen definition into the record table and lays it out. `L` is
  // consumed: the caller finds "[]" in it on return.
  void Dorvi(String& L);
  // Lays out and draws the current table; True sizes the form for the
  // screen, False only makes sure that it is large enough.
  void EcrSais(Boolean ReDimFeuille);
  // Draws record `I`: its label box and its entry box. Outside 0 to 40: 9.
  void GénèreControl(Integer I);

  // `I` is a field's identifier in the record table; an unknown one is
  // reported and the method goes on with the never-filled record 0.
  void RechRub(const String& I, Integer& R);
  void SaisDon(const String& I, String& C, Integer& TR, const String& IMS, Long* O = nullptr,
               const String& LRacAutoNb = u"[]", const String& Coul = u"B");
  void SaisDonnee(const String& P, const String& I, String& C, Integer& TR, Long* O = nullptr,
                  const String& LRacAutoNb = u"[]", const String& Coul = u"B");
  void Sai(const String& I, String& C, Integer& TR, Boolean ClavierKY = false,
           const String& LRacAutoNb = u"[]", const String& Coul = u"B");
  void SaiD(const String& I, String& C, Integer& TR, Long& O, const String& Coul = u"B");
  void SaiF(const String& I, String& C, Integer& TR, const String& Coul = u"B");
  void ConsDon(const String& I, const String& C);
  void AffDon(Integer L, Single CT, Single LzT, Single CzT, String C, String T);
  void PosAD(const String& I, Single& Y, Single& X);
  void MesAD(const String& I, const String& C, const String& Mes);
  void ImageAD(const String& I, PictureBoxRef C);
  void MesSD(const String& I, const String& C, const String& Mes, Boolean EffLigneEntière = false);
  void ImageSD(const String& I, PictureBoxRef C);
  void MesSR(const String& I, const String& C, const String& Mes, Boolean EffLigneEntière = false,
             Boolean EffRien = false);
  void PosAffRub(const String& I, Long& L, Long& C);

  // -------------------------------------------------------------------------
  // [SECTION] Text display: grid, colours, output, erasing
  // -------------------------------------------------------------------------
  Long HauteurTexte();
  Single WinLigne(Single L);
  Long LigneWin(Single Y);
  Single LargeurTexte(const String& T);
  Single WinCol(Single C);
  Long ColWin(Single X);
  Integer NbLigne();
  Integer NbCol();
  void PosAff(Long* L = nullptr, Long* C = nullptr);
  void AffPos(Long L, Long C = 1);
  void AffPosT(Long L, Long C);

  Long CouleurFond(const String& C);
  Long Couleur(const String& C);

  void MesBasEcran(const String& C, const String& Mes);
  void AfficheCentre(Long L, const String& C, String Mes, Boolean EffAv = true,
                     Long* ColFin = nullptr);
  // `Col` is the grid column, written C' where the line comes first.
  void Affiche(Long L, Integer Col, const String& C, const String& Mes);
  void AfficheColT(Long L, Single CT, const String& C, const String& Mes);
  void AfficheT(Long LT, Single CT, const String& C, const String& Mes);
  void Aff(const String& C, const String& Mes);
  void AffLig(const String& C, const String& Mes, Long* L = nullptr);
  void AffL(const String& M);
  void AffSL(Integer N);

  void EffaceZoneSaisie(Single LT, Single CzT, Single LzT, Long Coul = -1,
                        PictureBoxRef A = nullptr);
  void EffaceLigneColT(Integer L, Single CT);
  void EffaceLignes(Integer Ld, Integer Lf);
  void EffaceLigne(Integer L, Integer C = 1);
  void EffaceEcran(Boolean RéductionFeuille = false);

  // -------------------------------------------------------------------------
  // [SECTION] Text display: coloured messages and blocks
  // -------------------------------------------------------------------------
  // LM is a list of runs [colour code, text, size letter?]; the caller's
  // list is not changed. C -1 centres the message on the surface.
  void AffMesCoul(Long L, String LM, Boolean EffAv = true, Single C = -1);
  Long LongMesCoul(String LM);
  Single TailleMesCoul(const String& A);
  // L is consumed: on return it is "[]".
  void AffBloc(const String& C, String& L, const String& E, Boolean EffAv = false,
               Boolean Agrand = true, Boolean MesCoul = false);
  void AfficheBlocMes(const String& M, Long L);

  // -------------------------------------------------------------------------
  // [SECTION] Tables
  // -------------------------------------------------------------------------
  // L, the column description, is consumed: on return it is "[]".
  void AffTab(Long NL, String& L, Single MB = 0);
  Integer NLTab();
  Integer CTab(const String& I);
  Integer LTab(Long L);
  void RechIdenTab(const String& I, Integer& R);

  // -------------------------------------------------------------------------
  // [SECTION] Window management: sizing, waiting, screen save, caption,
  //           rules, message zone
  // -------------------------------------------------------------------------
  Long EspaceFeuille(Long L, Long H);
  void Centrage(ObjectRef P, Long MargeBasse = 0);
  void InitKyF();
  void DimensionFeuille(Integer H, Integer L = 80);
  void DimensionFeuilleLT(Integer H, Single L, Boolean QueSiInf = false);

  // Wait for the operator's acknowledgement: in a message box, or in a field
  // on the surface, which is given back as it was.
  void MessageAttente();
  void Attente();

  // Saving nests: pairs of Mem and Res calls, last saved first restored.
  // MemEcrSais also keeps the record table, 5 screens deep, and one copy of
  // the column table.
  void MemEcr();
  void ResEcr();
  void MemEcrSais();
  void ResEcrSais();

  void TraceColonne(Integer Ld, Integer C, Integer Lf, const String& Mode);
  void Titre(const String& T);
  // `P` is shown in the form's "zoneMessage" under the surface.
  void AfficheZoneMessage(const PictureRef& P);
  void EffaceZoneMessage();
};

}  // namespace ferlan

FERLAN_PUBLIC_END

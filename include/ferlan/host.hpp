// The host contract: every operation the component asks of the world outside
// it. The forms runtime (form, picture controls, timers, clipboard, screen)
// and the companion classes (Env, Chaines, Conv, ...) are interfaces here; the
// host provides them through a ClassRegistry. Members of the form that are
// reached by name at run time go through Form::Member and raise 438 when the
// form lacks them.
//
// Units: surface and form sizes are in twips (15 to a pixel at 96 dpi), one
// scale for both. Colours are Long 0x00BBGGRR; -1 means "none" where a
// Dessin operation says so.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ferlan/env_members.hpp"
#include "ferlan/runtime.hpp"
#include "ferlan/variant.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan {

// Every host object. Late-bound access by member name, for hosts and tools
// that address objects by name; a member the object lacks raises 438.
class Object {
 public:
  virtual ~Object() = default;
  virtual Variant GetProperty(std::string_view name);
  virtual void SetProperty(std::string_view name, const Variant& value);
};

// ---------------------------------------------------------------------------
// Forms runtime
// ---------------------------------------------------------------------------

class Font : public Object {
 public:
  virtual Boolean Bold() const = 0;
  virtual void SetBold(Boolean bold) = 0;
  virtual Single Size() const = 0;
  virtual void SetSize(Single size) = 0;
};

// A picture held by a control or made from an image file.
class Picture : public Object {
 public:
  virtual Single Width() const = 0;   // twips
  virtual Single Height() const = 0;  // twips
};
using PictureRef = std::shared_ptr<Picture>;

// A control placed on a form.
class Control : public Object {
 public:
  virtual Single Left() const = 0;
  virtual void SetLeft(Single v) = 0;
  virtual Single Top() const = 0;
  virtual void SetTop(Single v) = 0;
  virtual Single Width() const = 0;
  virtual void SetWidth(Single v) = 0;
  virtual Single Height() const = 0;
  virtual void SetHeight(Single v) = 0;
  virtual Boolean Visible() const = 0;
  virtual void SetVisible(Boolean v) = 0;
};
using ControlRef = std::shared_ptr<Control>;

// A picture control: the drawing surface, the caret, the message zone.
// Drawing calls use the control's scale (twips, top at ScaleTop).
class PictureBox : public Control {
 public:
  virtual ferlan::Font& Font() = 0;
  // Measures of a text in the current font.
  virtual Single TextWidth(StringView text) = 0;
  virtual Single TextHeight(StringView text) = 0;
  virtual Single CurrentX() const = 0;
  virtual void SetCurrentX(Single v) = 0;
  virtual Single CurrentY() const = 0;
  virtual void SetCurrentY(Single v) = 0;
  // Inner size: Width and Height less the control's border.
  virtual Single ScaleWidth() const = 0;
  virtual Single ScaleHeight() const = 0;
  virtual Single ScaleTop() const = 0;
  virtual Long BackColor() const = 0;
  virtual void SetBackColor(Long colour) = 0;
  virtual PictureRef Picture() const = 0;
  // Set by reference: the control shows that very picture.
  virtual void SetPicture(PictureRef picture) = 0;

  // Drawing. Corners may come in any order; the box includes both.
  virtual void Cls() = 0;  // clears to BackColor, CurrentX/Y to 0
  virtual void FillBox(Single x1, Single y1, Single x2, Single y2, Long colour) = 0;
  virtual void Box(Single x1, Single y1, Single x2, Single y2, Long colour) = 0;
  virtual void Line(Single x1, Single y1, Single x2, Single y2, Long colour) = 0;
  // Draws text with its top left corner at CurrentX/CurrentY and leaves
  // CurrentX at the end of the text.
  virtual void Print(StringView text, Long colour) = 0;
  // A snapshot of what the surface shows now, at its present size.
  virtual PictureRef Image() = 0;
  // Draws a picture with its top left corner at (x, y).
  virtual void PaintPicture(const PictureRef& picture, Single x, Single y) = 0;
};
using PictureBoxRef = std::shared_ptr<PictureBox>;

class Timer : public Object {
 public:
  virtual Boolean Enabled() const = 0;
  virtual void SetEnabled(Boolean v) = 0;
  virtual Long Interval() const = 0;  // milliseconds, 0 stops it
  virtual void SetInterval(Long v) = 0;
};
using TimerRef = std::shared_ptr<Timer>;

class Form : public Object {
 public:
  virtual Single Left() const = 0;
  virtual void SetLeft(Single v) = 0;
  virtual Single Top() const = 0;
  virtual void SetTop(Single v) = 0;
  virtual Single Width() const = 0;
  virtual void SetWidth(Single v) = 0;
  virtual Single Height() const = 0;
  virtual void SetHeight(Single v) = 0;
  virtual Single ScaleWidth() const = 0;
  virtual Single ScaleHeight() const = 0;
  virtual Integer WindowState() const = 0;  // 0 normal, 1 minimised, 2 maximised
  virtual void SetWindowState(Integer v) = 0;
  virtual Long BorderStyle() const = 0;
  virtual void SetBorderStyle(Long v) = 0;
  virtual Boolean KeyPreview() const = 0;
  virtual void SetKeyPreview(Boolean v) = 0;
  virtual String Caption() const = 0;
  virtual void SetCaption(const String& v) = 0;
  virtual Long hWnd() const = 0;
  // A control or object of the form by name ("BarreOutils", "Caret",
  // "zoneMessage", "ClavierKY"), looked up at each use; 438 when missing.
  virtual ObjectRef Member(std::string_view name) = 0;
  // A number that changes whenever a member is added or replaced and that no
  // other form shares, so that a caller may keep what Member gave while it
  // stays the same. 0, the default, promises nothing: look up at each use.
  virtual std::uint64_t MembersVersion() const { return 0; }
};
using FormRef = std::shared_ptr<Form>;

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual void SetText(const String& text, Long format = 1) = 0;
  // Format 1 is plain text.
  virtual String GetText(Long format = 1) = 0;
};

class Screen {
 public:
  virtual ~Screen() = default;
  virtual Single Width() const = 0;   // twips
  virtual Single Height() const = 0;  // twips
};

// The forms runtime's global object.
class Global : public Object {
 public:
  virtual ferlan::Clipboard& Clipboard() = 0;
  virtual ferlan::Screen& Screen() = 0;
  // Delivers pending key events to the host's handlers and fires due timers,
  // then returns.
  virtual void DoEvents() = 0;
  // A timer of a hidden form of the component; `on_tick` runs inside DoEvents.
  virtual TimerRef CreateTimer(std::function<void()> on_tick) = 0;
  // A picture from the bytes of a BMP or PNG image.
  virtual PictureRef LoadPicture(std::span<const std::uint8_t> image) = 0;
};

// ---------------------------------------------------------------------------
// Companion classes. Arguments follow the component's calls; outputs are
// non-const references.
// ---------------------------------------------------------------------------

// The environment. Every instance shows the same state.
class Env : public Object {
 public:
  virtual FormRef KyF() = 0;                   // the main form, may be Nothing
  virtual PictureBoxRef ZoneAff() = 0;         // the drawing surface
  // The same two without taking a share, for a use that ends before Env
  // can change them.
  virtual Form* KyFView() { return KyF().get(); }
  virtual PictureBox* ZoneAffView() { return ZoneAff().get(); }
  virtual void SetZoneAff(PictureBoxRef zone) = 0;
  // Every other member, from the one list of them.
#define FERLAN_ENV_DECLARE(type, name, access, initial)      \
  FERLAN_ENV_IF_GET_##access(virtual type name() = 0;)     \
  FERLAN_ENV_IF_SET_##access(virtual void Set##name(type v) = 0;)
  FERLAN_ENV_MEMBERS(FERLAN_ENV_DECLARE)
#undef FERLAN_ENV_DECLARE
};

// Bracketed lists of texts; "[]" is the empty list.
class Chaines : public Object {
 public:
  virtual void Ajoute(String& Liste, String Element) = 0;
  virtual Long NbElements(const String& Liste) = 0;
  virtual void Extrait(String& Liste, String& E) = 0;
  virtual String Suivant(String& Liste) = 0;
  virtual String Element(const String& Liste, Long I) = 0;
  virtual void ListeValide(const String& Liste, Boolean& Ok, Long& Pos) = 0;
};

class Conv : public Object {
 public:
  virtual String FormatReel(Double V, Integer ND) = 0;
  virtual Double Arrondi(Double V, Integer ND) = 0;
  virtual String Cadre(String S, Integer L, Integer N) = 0;
  virtual String Elague(String S) = 0;
  virtual String EntierTexte(Long V, Integer L) = 0;
  virtual Integer LongUtile(String& S) = 0;
  virtual void Majuscules(String& S) = 0;
  virtual Double Puissance(Double Base, Double Expo) = 0;
  virtual Boolean NombreValide(const String& S, Integer ND) = 0;
  virtual String BinEntier(Integer V) = 0;
  virtual String BinSimple(Single V) = 0;
  virtual String BinReel(Double V) = 0;
  virtual Integer EntierBin(const String& S) = 0;
  virtual Single SimpleBin(const String& S) = 0;
  virtual Double ReelBin(const String& S) = 0;
  virtual Variant Maxi(const Variant& A, const Variant& B) = 0;
  virtual void Tronque(String& S, Long N) = 0;
  virtual String SansFin(String S, Long N) = 0;
  virtual Boolean FinitPar(String S, String Fin) = 0;
  virtual Boolean EstRacine(String Racine, const String& Texte) = 0;
  virtual String SansRacine(const String& Texte, const String& Racine) = 0;
};

class Erreur : public Object {
 public:
  virtual void Message(const String& Mes, const String& Source) = 0;
  virtual void Code(Long N) = 0;
};

// Drawing primitives. `Zone` is the surface; coordinates in its scale.
class Dessin : public Object {
 public:
  virtual Single TaillePolice(PictureBox& Zone) = 0;
  virtual void Texte(PictureBox& Zone, Single X, Single Y, const String& Mes, Long Coul) = 0;
  virtual void LigneV(PictureBox& Zone, Single X, Single Y1, Single Y2, Long Coul) = 0;
  virtual void Pave(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2, Long Coul) = 0;
  virtual void EffaceRect(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2,
                          Long Coul) = 0;
  virtual void Rectangle(PictureBox& Zone, Long Coul, Single Y, Single X, Single Largeur,
                         Single Hauteur) = 0;
  virtual void Cadre3D(PictureBox& Zone, Long CoulFond, Long Coul, const String& Texte,
                       Single Y, Single X, Single Largeur, Single Hauteur, const String& Style,
                       Long N, const String& Align) = 0;
  virtual void Efface(PictureBox& Zone) = 0;
  virtual void Reduit(PictureBox& Zone) = 0;
  virtual void Recadre(Form& F) = 0;
  virtual void Hauteur(PictureBox& Zone, Single H, Boolean QueSiInf) = 0;
  virtual void Largeur(PictureBox& Zone, Single W, Boolean QueSiInf) = 0;
  virtual void MemImage(PictureBox& Zone) = 0;
  virtual void ResImage(PictureBox& Zone) = 0;
};

class Pile : public Object {
 public:
  virtual void Empile(Variant V) = 0;
  // Pops into V, converted to the type V holds on entry (Long or String).
  virtual void Depile(Variant& V) = 0;
};

class Boite : public Object {
 public:
  virtual String Message(const String& Style, const String& Titre, const String& Texte,
                         const String& Complement, Long Code) = 0;
  virtual void BlocMes(PictureBox& Zone, const String& M, Long L) = 0;
};

class Aide : public Object {
 public:
  virtual void Affiche(const String& Sujet) = 0;
};

class Entete : public Object {
 public:
  virtual String Texte() = 0;
};

class Calcul : public Object {
 public:
  virtual Boolean Analyse(const String& Texte, String& Forme) = 0;
  virtual Boolean Evalue(const String& Forme, String& Resultat) = 0;
};

class Dates : public Object {
 public:
  virtual Boolean Valide(const String& M, Long& ORDREDATE) = 0;
};

class Fenetres : public Object {
 public:
  virtual Long Active() = 0;
};

// ---------------------------------------------------------------------------
// Creation of external objects by class name.
// ---------------------------------------------------------------------------
class ClassRegistry {
 public:
  using Factory = std::function<ObjectRef()>;
  void Register(std::string class_name, Factory factory);
  bool Has(std::string_view class_name) const;
  // A new object of that class; 429 when the class is not registered.
  ObjectRef Create(std::string_view class_name) const;

 private:
  struct Entry {
    std::string name;
    Factory factory;
  };
  std::vector<Entry> entries_;
};

}  // namespace ferlan

FERLAN_PUBLIC_END

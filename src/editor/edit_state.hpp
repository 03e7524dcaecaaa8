// The variables of one edit: Modif's arguments and the edit variables that
// live for one call. Commands, field kinds and the caret all work on this.
//
// Invariant between commands: CH holds exactly LC characters, blanks at the
// end, and 1 <= P <= LC (LC 0 runs no command at all).
#pragma once

#include "component/module_state.hpp"
#include "ferlan/host.hpp"
#include "ferlan/runtime.hpp"

namespace ferlan {

struct EditState {
  ModuleState& st;

  // Arguments.
  Single LT;               // top of the field, surface units
  Integer C;               // grid column of the first character; scrolling only
  Single CT;               // left edge of the text, surface units
  Integer LCM;             // field length, or the columns taken with "Infini"
  Single LzT;              // width of the zone to erase
  Single CzT;              // left of the zone to erase
  const String& TV;        // "D" date, "B" yes/no, anything else text
  String& CH;              // the text
  Integer& TR;             // the key that ended the edit
  const String& IMS;       // entry mode
  Integer& Col;            // caret start with "E"; caret position at the end
  const String& Coul;      // colour code while edited
  PictureBoxRef KyFSubst;  // surface to draw on instead of Env.ZoneAff
  Single CaretX;
  Single CaretY;

  // Edit variables.
  Integer LC = 0;           // field length
  Integer CMax = 0;         // last grid column the field may reach
  Integer NbVis = 0;        // characters shown at once
  Integer Decal = 0;        // characters scrolled out on the left
  Integer P = 0;            // caret position in CH
  Integer LU = 0;           // used length as counted; only an estimate after some commands
  Boolean Premier = false;  // the next character typed at position 1 blanks the field
  Boolean Fin = false;
  String R{};        // character of the last key; the repeat key's default
  Integer Code = 0;  // control key of the last key, 0 for a character
  String TexteVu{};  // the part of the text now on the surface
  String LeftOfCaret{};  // TexteVu left of the caret, measured; its room is kept
  Boolean AvecSubst = false;
  PictureBoxRef ZoneGardee{};  // Env.ZoneAff on entry, when AvecSubst
};

// The text is a hidden value: its first character has the code 1. It is not
// drawn, and the field's earlier picture stays.
Boolean IsHidden(const EditState& e);

// Runs `draw` with KyFSubst as Env.ZoneAff when one was given, then puts the
// former surface back. A failure inside leaves KyFSubst in place, as any
// platform error stops the edit where it stands.
template <class Draw>
void OnFieldSurface(EditState& e, Draw draw) {
  if (e.AvecSubst) e.st.Env->SetZoneAff(e.KyFSubst);
  draw();
  if (e.AvecSubst) e.st.Env->SetZoneAff(e.ZoneGardee);
}

// Blanks the zone: EffaceZoneSaisie with colour -1 on the field's surface.
void BlankZone(EditState& e);

}  // namespace ferlan

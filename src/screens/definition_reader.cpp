// Dorvi: reads a screen definition, one element at a time, into the record
// table, then has EcrSais lay it out. Commands ("@COL", "@COUL", "@NReDim")
// change what the following fields get; any other element is a field, a
// list read by position. No syntax check: the reader takes whatever
// Chaines.Extrait gives, and an absent position reads as Extrait leaves it.
#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "screens/record_table.hpp"

namespace ferlan {

namespace {

// What the commands read so far hand to the next field.
struct ReaderState {
  String colour;          // "@COUL": empty until given
  Integer column = 0;     // "@COL", in columns; 0 is automatic
  Boolean resize = true;  // False once "@NReDim" is seen, wherever it stands
};

String TakeElement(ModuleState& st, String& list) {
  String element;
  st.Chaines->Extrait(list, element);
  return element;
}

// One command, without its "@". "COL" is tested before "COUL" and on three
// letters, so "COLONNE" is a column (of value 0); both are case-sensitive,
// while "NReDim" is matched on six letters in any case.
void ReadCommand(ModuleState& st, const String& command, ReaderState& reader) {
  if (Left(command, 3) == u"COL") {
    reader.column = CInt(Val(Mid(command, 4)));
  } else if (Left(command, 4) == u"COUL") {
    reader.colour = Mid(command, 5);
  } else if (UCase(Left(command, 6)) == u"NREDIM") {
    reader.resize = false;
  } else {
    st.Erreur->Message(u"Commande @" + command + u"@ Inconnue @", u"DORVI");
  }
}

// Position 5. "ML" also sends the column back to automatic, so that the
// field follows the previous one even under "@COL"; a column at position 6
// is read later and wins.
void ReadLine(const String& text, RubRecord& r) {
  if (text == u"ML") {
    r.L = 0;
    r.ClT = 0;
  } else if (Left(text, 1) == u"S") {
    r.L = SubInt(0, CInt(Val(Mid(text, 2))));
  } else if (Trim(text).empty()) {
    r.L = -2;
  } else {
    r.L = CInt(Val(text));
  }
}

// Position 6: "C" centres; anything else is a column, where 0 and an empty
// text mean automatic whatever "@COL" said.
void ReadColumn(const String& text, RubRecord& r) {
  if (text == u"C") {
    r.ClT = -1;
  } else {
    r.ClT = KySaisie{}.WinCol(CSng(Val(text)));
  }
}

// One field into element NbRub + 1. The record is only counted once read
// whole; a 41st field raises 9 before anything is written.
void ReadField(ModuleState& st, String& field, const ReaderState& reader) {
  RubRecord& r = screens::RubAt(st, AddLng(st.NbRub, 1));
  r.Identif = u"";
  r.Libelle = u"";
  r.TypeDon = u"";
  r.Valeur = u"";
  r.Coul = reader.colour;
  r.LC = 0;
  r.L = -2;
  r.LlT = 0;
  r.ClT = reader.column != 0 ? KySaisie{}.WinCol(static_cast<Single>(reader.column)) : Single{0};

  // The three required positions are taken without looking whether the
  // field has them.
  r.Identif = TakeElement(st, field);
  r.Libelle = TakeElement(st, field);
  r.TypeDon = TakeElement(st, field);

  for (int position = 4; position <= 7 && field != u"[]"; ++position) {
    const String text = TakeElement(st, field);
    switch (position) {
      case 4:
        r.LC = CInt(Val(text));
        break;
      case 5:
        ReadLine(text, r);
        break;
      case 6:
        ReadColumn(text, r);
        break;
      default:
        r.LlT = KySaisie{}.WinCol(CSng(Val(text)));
        break;
    }
  }
  // Position 8; anything after it is not read.
  if (field != u"[]") r.Coul = TakeElement(st, field);
  st.NbRub = AddInt(st.NbRub, 1);
}

}  // namespace

void KySaisie::Dorvi(String& L) {
  ModuleState& st = State();
  st.Env->SetRubCourante(0);
  st.NbRub = 0;
  ReaderState reader;
  // Chaines.Extrait shortens the list at each call and leaves exactly "[]"
  // after the last element, so this ends on any text.
  while (L != u"[]") {
    String element = TakeElement(st, L);
    if (Left(element, 1) == u"@") {
      ReadCommand(st, Mid(element, 2), reader);
    } else {
      ReadField(st, element, reader);
    }
  }
  KySaisie{}.EcrSais(reader.resize);
}

}  // namespace ferlan

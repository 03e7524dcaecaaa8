// Saving and restoring screens. The visible level is checked on the
// fixed-metric surface, whose picture is its display list; the entry level
// on the record and column tables of the session's apartment.
#include <string>
#include <vector>

#include "component/module_state.hpp"
#include "ferlan/kysaisie.hpp"
#include "headless/fixed_canvas.hpp"
#include "support/session_test.hpp"

namespace ferlan::testing {
namespace {

class ScreenSaveTest : public SessionTest {
 protected:
  std::string Picture() {
    return dynamic_cast<headless::FixedCanvas&>(Zone().GetCanvas()).DescribeOps();
  }
  std::vector<Single> Places() {
    return {Zone().Top(),  Zone().Left(),  Zone().Width(), Zone().Height(),
            Form().Top(),  Form().Left(),  Form().Width(), Form().Height()};
  }
  // A column table of `count` columns named tag1, tag2, ...
  void MakeTable(Long count, const std::u16string& tag, Long line) {
    ModuleState& st = State();
    st.Colonnes.assign(static_cast<std::size_t>(count) + 1, ColonneRecord{});
    for (Long i = 1; i <= count; ++i) {
      st.Colonnes[static_cast<std::size_t>(i)].Ident = tag + NumberText(i);
      st.Colonnes[static_cast<std::size_t>(i)].ColDeb = static_cast<Integer>(10 * i);
    }
    st.NbColonnes = count;
    st.LigneTable = line;
    st.NbLignesTable = static_cast<Integer>(line + 1);
  }
  // The current table, "line rows: ident@col ...".
  std::string Table() {
    ModuleState& st = State();
    std::string out = std::to_string(st.LigneTable) + " " + std::to_string(st.NbLignesTable) + ":";
    for (Long i = 1; i <= st.NbColonnes; ++i) {
      const ColonneRecord& c = st.Colonnes.at(static_cast<std::size_t>(i));
      out += " " + ToUtf8(c.Ident.Trimmed()) + "@" + std::to_string(c.ColDeb);
    }
    return out + " (" + std::to_string(st.Colonnes.size()) + ")";
  }
  std::string Identifiers() {
    std::string out;
    for (int i = 1; i <= State().NbRub; ++i) {
      out += ToUtf8(State().Rub.at(static_cast<std::size_t>(i)).Identif.Trimmed()) + " ";
    }
    return out;
  }
  void Define(const String& definition) {
    String list = definition;
    ky.Dorvi(list);
  }
  KySaisie ky;
};

const std::string kNothingSaved =
    "ResEcrSais: Matrice de Sauvegarde @sES()@ des Ecrans de Saisie est @Vide@ Aucune Restitution "
    "n'est Possible";

TEST_F(ScreenSaveTest, ResEcrBringsBackPictureSizesPlacesAndCaptionThroughLongs) {
  ky.DimensionFeuille(20);
  ky.Affiche(3, 5, u"N", u"Premier");
  Form().SetCaption(u"Un");
  Form().SetTop(100.5);
  Form().SetLeft(101.5);
  Zone().SetTop(33.5);
  Zone().SetLeft(-12.5);
  const std::string first = Picture();
  const std::vector<Single> first_places = Places();
  TakeLog();
  ky.MemEcr();
  EXPECT_EQ(TakeLog(), "MemImage\n");

  // A second screen, larger and nested in a save of its own.
  ky.Titre(u"Deux");
  ky.DimensionFeuille(30, 120);
  ky.Affiche(28, 100, u"N", u"Second");
  const std::string second = Picture();
  const String second_caption = Form().Caption();
  // Centred at 7.5, kept at 100.5 and 101.5: back as 8, 100 and 102.
  const std::vector<Single> second_places = {8, 0, 13080, 9420, 100, 102, 13200, 9885};
  ky.MemEcr();
  ky.EffaceEcran();
  Form().SetCaption(u"Trois");
  Form().SetWidth(20000);

  TakeLog();
  ky.ResEcr();
  EXPECT_EQ(TakeLog(), "ResImage\n");
  EXPECT_EQ(Picture(), second);
  EXPECT_EQ(Places(), second_places);
  EXPECT_EQ(Form().Caption(), second_caption);

  // Fractions come back rounded to even; the smaller surface gets its size
  // before its picture, so the picture is exactly the first one again.
  ky.ResEcr();
  EXPECT_EQ(Picture(), first);
  EXPECT_EQ(Places(), (std::vector<Single>{34, -12, first_places[2], first_places[3], 100, 102,
                                           first_places[6], first_places[7]}));
  EXPECT_EQ(Form().Caption(), u"Un");
}

TEST_F(ScreenSaveTest, AMaximisedFormKeepsItsSizeAndTheStackStaysInStep) {
  Form().SetCaption(u"Un");
  ky.MemEcr();
  Form().SetCaption(u"Deux");
  Form().SetWidth(13000);
  ky.MemEcr();
  // Between save and restore the normal size changes and the form is
  // maximised: the restore drops the saved size but restores the rest.
  Form().SetWidth(15000);
  Form().SetWindowState(2);
  ky.DimensionFeuille(40, 100);
  ky.Titre(u"x");
  ky.ResEcr();
  EXPECT_EQ(Form().Caption(), u"Deux");
  EXPECT_EQ(Form().Width(), 28800);
  EXPECT_EQ(Zone().Width(), 11880);
  Form().SetWindowState(0);
  EXPECT_EQ(Form().Width(), 15000);
  // The next restore takes the first save's values, not leftovers.
  ky.ResEcr();
  EXPECT_EQ(Form().Caption(), u"Un");
  EXPECT_EQ(Form().Width(), 12000);
}

TEST_F(ScreenSaveTest, ResEcrSaisBringsBackTheRecordsAndCentresTheSurface) {
  Define(u"[[A,Alpha,A,5],[B,Beta,I0,3]]");
  State().Rub[2].Valeur = u"42";
  Zone().SetLeft(7);
  ky.MemEcrSais();
  Define(u"[[X,x,A,5],[Y,y,A,5],[Z,z,A,5]]");
  EXPECT_EQ(Identifiers(), "X Y Z ");
  ky.ResEcrSais();
  // Record 3 of the later screen stays in the table, hidden by NbRub.
  EXPECT_EQ(Identifiers(), "A B ");
  EXPECT_EQ(State().Rub[2].Valeur.Trimmed(), u"42");
  EXPECT_EQ(State().Rub[3].Identif.Trimmed(), u"Z");
  EXPECT_EQ(Zone().Left(), (Form().ScaleWidth() - Zone().Width()) / 2);
  EXPECT_EQ(State().nES, 0);

  // Nothing saved: ResEcr has run, then the report, and nothing is centred
  // nor restored.
  ky.MemEcr();
  Zone().SetLeft(7);
  ky.MemEcr();
  ky.ResEcrSais();
  EXPECT_EQ(TakeReports(), std::vector<std::string>{kNothingSaved});
  EXPECT_EQ(Zone().Left(), 7);
  EXPECT_EQ(Identifiers(), "A B ");
}

TEST_F(ScreenSaveTest, TheSixthSaveReportsSaturationAndKeepsTheFifth) {
  for (int level = 1; level <= 6; ++level) {
    Define(u"[[F" + NumberText(level) + u",f,A,5]]");
    MakeTable(level, u"t", level);
    Form().SetCaption(u"Niveau " + NumberText(level));
    ky.MemEcrSais();
  }
  EXPECT_EQ(TakeReports(), std::vector<std::string>{
                               "MemEcrSais: Matrice de Sauvegarde @sES()@ des Ecrans de Saisie est "
                               "@ Saturée @ - @5  Mémorisations on déjà été Effectuées"});
  EXPECT_EQ(State().nES, 5);
  EXPECT_EQ(State().sNbColonnes, 5);

  // Pile stands one save deeper: the first restore gives the sixth visible
  // screen back with the fifth records; the sixth restore finds sES empty.
  for (int level = 6; level >= 1; --level) {
    ky.ResEcrSais();
    EXPECT_EQ(Form().Caption(), u"Niveau " + NumberText(level));
    if (level > 1) {
      EXPECT_EQ(Identifiers(), "F" + std::to_string(level - 1) + " ");
    }
    EXPECT_EQ(Table(), "5 6: t1@10 t2@20 t3@30 t4@40 t5@50 (6)");
  }
  EXPECT_EQ(TakeReports(), std::vector<std::string>{kNothingSaved});
}

}  // namespace
}  // namespace ferlan::testing

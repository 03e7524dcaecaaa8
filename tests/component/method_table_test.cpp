#include "ferlan/method_table.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "cli/methods_command.hpp"
#include "support/session_test.hpp"

namespace ferlan {
namespace {

using testing::ExpectPlatformError;

TEST(MethodTableTest, ListsTheNinetyThreeMethodsInInterfaceOrder) {
  std::istringstream expected(
      "IntercepteClavierKY GestKeyDown GestKeyPress ModifClavier ClavierVirtuelToucheFonction "
      "ClavierVirtuel VideClavierVirtuel VideClavier Modif Ctrl_C FnMot FormatDate Saisie "
      "ScanClavier Dorvi EcrSais GénèreControl EffaceZoneSaisie EffaceLigneColT EffaceLignes "
      "EffaceLigne RechRub CodeType DecodeType SaisDon ModD ModDT TrLogS TransLogS TransSLog Sai "
      "SaiD SaiF SaisDonnee SaisL SaiLON ConsDon AffDon PosAD MesAD ImageAD MesSD ImageSD MesSR "
      "PosAffRub PosAff AffPos AffPosT AffBloc AffMesCoul TailleMesCoul LongMesCoul "
      "AfficheBlocMes EspaceFeuille Centrage EffaceEcran MessageAttente Attente InitKyF "
      "DimensionFeuille DimensionFeuilleLT MemEcr ResEcr MemEcrSais ResEcrSais HauteurTexte "
      "WinLigne LigneWin LargeurTexte WinCol ColWin NbLigne NbCol MesBasEcran AfficheCentre "
      "Affiche AfficheColT AfficheT Aff AffLig AffL AffSL TraceColonne Titre CouleurFond Couleur "
      "AffTab NLTab CTab LTab RechIdenTab AfficheZoneMessage EffaceZoneMessage");
  std::size_t i = 0;
  for (std::string name; expected >> name; ++i) {
    ASSERT_LT(i, MethodTable().size());
    EXPECT_EQ(MethodTable()[i].name, name);
    EXPECT_EQ(MethodTable()[i].dispid, 0x60030000 + static_cast<Long>(i));
  }
  EXPECT_EQ(i, MethodTable().size());
  std::ostringstream out;
  tool::PrintMethods(out);
  EXPECT_EQ(out.str().substr(0, 31), "0x60030000 IntercepteClavierKY\n");
  EXPECT_NE(out.str().find("0x6003005C EffaceZoneMessage\n"), std::string::npos);
}

TEST(MethodTableTest, InvokersCheckArgumentsWriteOutputsBackAndAreAllBuilt) {
  Apartment apartment{ClassRegistry{}};
  KySaisie k;
  const MethodInfo* modif_clavier = FindMethod("ModifClavier");
  ASSERT_NE(modif_clavier, nullptr);
  // Too many, too few, of the wrong type, out of range.
  const std::pair<std::vector<Variant>, Long> refused_calls[] = {{{Long{65}, true, Long{1}}, 450},
                                                                 {{Long{65}}, 449},
                                                                 {{String(u"x"), true}, 13},
                                                                 {{Double{40000}, true}, 6}};
  for (const auto& [refused, number] : refused_calls) {
    std::vector<Variant> args = refused;
    ExpectPlatformError([&] { modif_clavier->invoke(k, args); }, number);
  }

  // GestKeyPress takes the character and writes 0 back into KeyAscii.
  std::vector<Variant> key{Long{97}};
  FindMethod("GestKeyPress")->invoke(k, key);
  EXPECT_EQ(std::get<Integer>(key[0]), 0);

  // ScanClavier first needs Global, which no class registered here can create.
  std::vector<Variant> scan{String(u"x"), false}, none;
  ExpectPlatformError([&] { FindMethod("ScanClavier")->invoke(k, scan); }, 429);
  ExpectPlatformError([&] { FindMethod("Dorvi")->invoke(k, none); }, 449);
  EXPECT_EQ(FindMethod("NoSuchMethod"), nullptr);
  EXPECT_EQ(FindMethod("dorvi"), FindMethod("Dorvi"));

  // Every call stops at its first need of an external class (429) or at a
  // required argument (449); none is left unbuilt (445).
  for (const MethodInfo& m : MethodTable()) {
    try {
      none.clear();
      m.invoke(k, none);
    } catch (const PlatformError& e) {
      EXPECT_NE(e.Number(), 445) << m.name;
    }
  }
}

}  // namespace
}  // namespace ferlan

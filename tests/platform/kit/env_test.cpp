// The shared environment, members by name, and the classes made by name.
#include "kit/env.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "kit/kit.hpp"
#include "kit/pile.hpp"

namespace ferlan::kit {
namespace {

class KitTest : public ::testing::Test {
 protected:
  KitTest() { RegisterKit(registry_, env_, records_); }

  template <class T>
  std::shared_ptr<T> Make(std::string_view name) {
    auto object = std::dynamic_pointer_cast<T>(registry_.Create(name));
    EXPECT_TRUE(object) << name;
    return object;
  }

  std::shared_ptr<EnvState> env_ = std::make_shared<EnvState>();
  std::shared_ptr<Records> records_ = std::make_shared<Records>();
  ClassRegistry registry_;
};

TEST_F(KitTest, FreshEnvironmentHasTheDefaults) {
  auto e = Make<ferlan::Env>("Env");
  EXPECT_EQ(e->ToucheGauche(), 37);
  EXPECT_EQ(e->ToucheDroite(), 39);
  EXPECT_EQ(e->ToucheHaut(), 38);
  EXPECT_EQ(e->ToucheBas(), 40);
  EXPECT_EQ(e->TouchePageHaut(), 33);
  EXPECT_EQ(e->TouchePageBas(), 34);
  EXPECT_EQ(e->ToucheEntree(), 13);
  EXPECT_EQ(e->ToucheVide(), 27);
  EXPECT_EQ(e->ToucheRetour(), 8);
  EXPECT_EQ(e->ToucheF1(), 112);
  EXPECT_EQ(e->ToucheF12(), 123);
  EXPECT_EQ(e->MargeX(), 1);
  EXPECT_EQ(e->MargeY(), 1);
  EXPECT_EQ(e->TaillePolice(), 0);
  EXPECT_EQ(e->Noir(), 0x000000);
  EXPECT_EQ(e->Blanc(), 0xFFFFFF);
  EXPECT_EQ(e->Jaune(), 0x00FFFF);  // 0x00BBGGRR: red and green
  EXPECT_FALSE(e->Abandon());
  EXPECT_EQ(e->KyF(), nullptr);
  EXPECT_EQ(e->ZoneAff(), nullptr);
}

TEST_F(KitTest, EveryEnvInstanceSeesTheSameState) {
  auto first = Make<ferlan::Env>("Env");
  auto second = Make<ferlan::Env>("Env");
  ASSERT_NE(first, second);
  first->SetCourantX(1234);
  first->SetSaisieOK(true);
  first->SetToucheVirtuelle(true);
  first->SetRubCourante(7);
  EXPECT_EQ(second->CourantX(), 1234);
  EXPECT_TRUE(second->SaisieOK());
  EXPECT_TRUE(second->ToucheVirtuelle());
  EXPECT_EQ(env_->RubCourante, 7);
  env_->Abandon = true;  // the host raises it directly
  EXPECT_TRUE(first->Abandon());
  second->SetProperty("ToucheEntree", Long{9013});
  EXPECT_EQ(first->ToucheEntree(), 9013);
}

TEST_F(KitTest, EveryMemberIsReachableByNameBothWays) {
  auto e = Make<ferlan::Env>("Env");
  long n = 1;
  for (std::string_view name : EnvPropertyNames()) {
    SCOPED_TRACE(std::string(name));
    const Variant before = e->GetProperty(name);
    if (std::holds_alternative<ObjectRef>(before)) continue;  // objects: below
    Variant value;
    if (std::holds_alternative<String>(before)) {
      value = String(u"texte ") + FromUtf8(std::to_string(n));
    } else if (std::holds_alternative<Boolean>(before)) {
      value = !std::get<Boolean>(before);
    } else {
      value = Double(static_cast<double>(n));
    }
    e->SetProperty(name, value);
    const Variant after = e->GetProperty(name);
    EXPECT_EQ(after.index(), before.index()) << "the member keeps its type";
    if (std::holds_alternative<String>(value)) {
      EXPECT_EQ(std::get<String>(after), std::get<String>(value));
    } else {
      EXPECT_EQ(VariantToDouble(after), VariantToDouble(value));
    }
    ++n;
  }
  EXPECT_EQ(e->ToucheEntree(), VariantToInteger(e->GetProperty("ToucheEntree")));
  EXPECT_EQ(env_->active_window, VariantToLong(e->GetProperty("FenetreActive")));
}

TEST_F(KitTest, NamesMatchWithoutCaseAndUnknownNamesRaise438) {
  auto e = Make<ferlan::Env>("Env");
  e->SetProperty("toucheentree", Integer{10});
  EXPECT_EQ(e->ToucheEntree(), 10);
  EXPECT_EQ(VariantToLong(e->GetProperty("TOUCHEENTREE")), 10);
  try {
    e->GetProperty("ToucheInconnue");
    ADD_FAILURE() << "no error";
  } catch (const PlatformError& error) {
    EXPECT_EQ(error.Number(), 438);
  }
  try {
    e->SetProperty("ToucheEntre", Integer{1});
    ADD_FAILURE() << "no error";
  } catch (const PlatformError& error) {
    EXPECT_EQ(error.Number(), 438);
  }
  // A value out of range for the member is the platform's overflow.
  try {
    e->SetProperty("ToucheEntree", Long{70000});
    ADD_FAILURE() << "no error";
  } catch (const PlatformError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
}

TEST_F(KitTest, ObjectMembersTakeObjectsOfTheirKind) {
  auto e = Make<ferlan::Env>("Env");
  e->SetProperty("KyF", ObjectRef());
  EXPECT_EQ(e->KyF(), nullptr);
  // A Pile is no form.
  try {
    e->SetProperty("KyF", ObjectRef(std::make_shared<Pile>()));
    ADD_FAILURE() << "no error";
  } catch (const PlatformError& error) {
    EXPECT_EQ(error.Number(), 13);
  }
}

TEST_F(KitTest, ReportersRecordInOrderAndReturnAtOnce) {
  auto erreur = Make<ferlan::Erreur>("Erreur");
  auto boite = Make<ferlan::Boite>("Boite");
  auto aide = Make<ferlan::Aide>("Aide");
  erreur->Message(u"Commande @X@ Inconnue @", u"DORVI");
  erreur->Code(55);
  EXPECT_EQ(boite->Message(u"Simple", u"Titre", u"Veuillez Taper sur @Entrée@", u"", 0), u"");
  aide->Affiche(u"CLAVIER");
  ASSERT_EQ(records_->reports.size(), 2u);
  EXPECT_EQ(records_->reports[0].source, u"DORVI");
  EXPECT_EQ(records_->reports[0].text, u"Commande @X@ Inconnue @");
  EXPECT_FALSE(records_->reports[0].code.has_value());
  EXPECT_EQ(records_->reports[1].code, 55);
  ASSERT_EQ(records_->boxes.size(), 1u);
  EXPECT_EQ(records_->boxes[0].style, u"Simple");
  EXPECT_EQ(records_->boxes[0].title, u"Titre");
  EXPECT_EQ(records_->boxes[0].text, u"Veuillez Taper sur @Entrée@");
  EXPECT_EQ(records_->help, std::vector<String>{u"CLAVIER"});
  records_->Clear();
  EXPECT_TRUE(records_->reports.empty() && records_->boxes.empty() && records_->help.empty());
}

TEST_F(KitTest, EnteteAndFenetresShowTheEnvironment) {
  env_->EnteteTexte = u"Facturation";
  env_->active_window = 42;
  EXPECT_EQ(Make<ferlan::Entete>("Entete")->Texte(), u"Facturation");
  EXPECT_EQ(Make<ferlan::Fenetres>("Fenetres")->Active(), 42);
}

TEST_F(KitTest, EveryClassIsRegistered) {
  for (const char* name : {"Env", "Chaines", "Conv", "Erreur", "Dessin", "Pile", "Boite", "Aide",
                           "Entete", "Calcul", "Dates", "Fenetres"}) {
    EXPECT_TRUE(registry_.Has(name)) << name;
  }
  EXPECT_FALSE(registry_.Has("Global"));
}

TEST(PileTest, PopsLastFirstIntoTheTypeOfTheVariable) {
  Pile pile;
  pile.Empile(Double{1500});
  pile.Empile(String(u"Titre"));
  pile.Empile(Single{2.5f});
  Variant as_long = Long{0};
  pile.Depile(as_long);
  ASSERT_TRUE(std::holds_alternative<Long>(as_long));
  EXPECT_EQ(std::get<Long>(as_long), 2);  // ties to even
  Variant as_text = String();
  pile.Depile(as_text);
  EXPECT_EQ(std::get<String>(as_text), u"Titre");
  Variant as_text_from_number = String();
  pile.Depile(as_text_from_number);
  EXPECT_EQ(std::get<String>(as_text_from_number), u"1500");
  EXPECT_EQ(pile.Depth(), 0u);
  Variant untouched = Long{77};
  pile.Depile(untouched);  // empty: V stays as it was
  EXPECT_EQ(std::get<Long>(untouched), 77);
}

}  // namespace
}  // namespace ferlan::kit

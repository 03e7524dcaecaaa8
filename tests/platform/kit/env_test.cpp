// The shared environment, members by name, and the classes made by name.
#include "kit/env.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "kit/kit.hpp"
#include "kit/pile.hpp"
#include "support/session_test.hpp"

namespace ferlan::kit {
namespace {

using ferlan::testing::ExpectPlatformError;

String Show(const Variant& v) {
  return std::holds_alternative<String>(v) ? std::get<String>(v) : NumberText(VariantToDouble(v));
}

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

TEST_F(KitTest, EveryMemberIsReachableByNameBothWaysInAnyCase) {
  auto e = Make<ferlan::Env>("Env");
  long n = 1;
  for (std::string_view name : EnvPropertyNames()) {
    SCOPED_TRACE(std::string(name));
    const Variant before = e->GetProperty(name);
    if (std::holds_alternative<ObjectRef>(before)) continue;  // objects: below
    Variant value = Double(static_cast<double>(n++));
    if (std::holds_alternative<String>(before)) value = String(u"texte ") + NumberText(n);
    if (std::holds_alternative<Boolean>(before)) value = !std::get<Boolean>(before);
    e->SetProperty(name, value);
    const Variant after = e->GetProperty(name);
    EXPECT_EQ(after.index(), before.index()) << "the member keeps its type";
    EXPECT_EQ(Show(after), Show(value));
  }
  EXPECT_EQ(e->ToucheEntree(), VariantToInteger(e->GetProperty("ToucheEntree")));
  EXPECT_EQ(env_->active_window, VariantToLong(e->GetProperty("FenetreActive")));
  // Names match in any case; unknown names, values out of range or of the
  // wrong kind (a Pile is no form) raise.
  e->SetProperty("toucheentree", Integer{10});
  EXPECT_EQ(VariantToLong(e->GetProperty("TOUCHEENTREE")), 10);
  ExpectPlatformError([&] { e->GetProperty("ToucheInconnue"); }, 438);
  ExpectPlatformError([&] { e->SetProperty("ToucheEntre", Integer{1}); }, 438);
  ExpectPlatformError([&] { e->SetProperty("ToucheEntree", Long{70000}); }, 6);
  e->SetProperty("KyF", ObjectRef());
  ExpectPlatformError([&] { e->SetProperty("KyF", ObjectRef(std::make_shared<Pile>())); }, 13);
}

TEST_F(KitTest, ReportersRecordInOrderAndReturnAtOnce) {
  Make<ferlan::Erreur>("Erreur")->Message(u"Commande @X@ Inconnue @", u"DORVI");
  Make<ferlan::Erreur>("Erreur")->Code(55);
  EXPECT_EQ(Make<ferlan::Boite>("Boite")->Message(u"Simple", u"Titre", u"Taper", u"", 0), u"");
  Make<ferlan::Aide>("Aide")->Affiche(u"CLAVIER");
  ASSERT_EQ(records_->reports.size(), 2u);
  EXPECT_EQ(records_->reports[0].source + records_->reports[0].text,
            u"DORVICommande @X@ Inconnue @");
  EXPECT_FALSE(records_->reports[0].code.has_value());
  EXPECT_EQ(records_->reports[1].code, 55);
  ASSERT_EQ(records_->boxes.size(), 1u);
  EXPECT_EQ(records_->boxes[0].style + records_->boxes[0].title + records_->boxes[0].text,
            u"SimpleTitreTaper");
  EXPECT_EQ(records_->help, std::vector<String>{u"CLAVIER"});
}

TEST_F(KitTest, EveryClassIsMadeByNameAndEnteteAndFenetresShowTheEnvironment) {
  for (const char* name : {"Env", "Chaines", "Conv", "Erreur", "Dessin", "Pile", "Boite", "Aide",
                           "Entete", "Calcul", "Dates", "Fenetres"}) {
    EXPECT_TRUE(registry_.Create(name)) << name;
  }
  EXPECT_FALSE(registry_.Has("Global"));
  env_->EnteteTexte = u"Facturation";
  env_->active_window = 42;
  EXPECT_EQ(Make<ferlan::Entete>("Entete")->Texte(), u"Facturation");
  EXPECT_EQ(Make<ferlan::Fenetres>("Fenetres")->Active(), 42);
}

TEST(PileTest, PopsLastFirstIntoTheTypeOfTheVariable) {
  Pile pile;
  pile.Empile(Double{1500});
  pile.Empile(String(u"Titre"));
  pile.Empile(Single{2.5f});
  const auto pop = [&pile](Variant v) {
    pile.Depile(v);
    return v;
  };
  EXPECT_EQ(pop(Long{0}), Variant(Long{2}));  // ties to even
  EXPECT_EQ(pop(String()), Variant(String(u"Titre")));
  EXPECT_EQ(pop(String()), Variant(String(u"1500")));
  EXPECT_EQ(pop(Long{77}), Variant(Long{77}));  // empty: V stays as it was
}

}  // namespace
}  // namespace ferlan::kit

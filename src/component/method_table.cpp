// The method table: 93 methods in the interface's order, each with an
// invoker that converts Variants to the declared parameters, calls the
// method, and writes outputs back.
#include "ferlan/method_table.hpp"

#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

namespace ferlan {

namespace {

using Defaults = std::vector<Variant>;

// A text parameter takes a text or Empty only; any other parameter converts
// as a typed variable does.
template <class V>
V FromVariant(const Variant& v) {
  if constexpr (std::is_same_v<V, String>) {
    if (std::holds_alternative<Empty>(v)) return {};
    if (const auto* s = std::get_if<String>(&v)) return *s;
    throw PlatformError::TypeMismatch("a text was expected");
  } else if constexpr (std::is_same_v<V, PictureRef>) {
    // A picture control where a picture is wanted gives its Picture, the
    // control's default property, as the platform coerces it.
    if (auto control = std::dynamic_pointer_cast<PictureBox>(VariantToObject(v))) {
      return control->Picture();
    }
    return VariantAs<Picture>(v);
  } else {
    return VariantTo<V>(v);
  }
}

template <class V>
Variant ToVariant(const V& value) {
  if constexpr (std::is_same_v<V, PictureBoxRef> || std::is_same_v<V, PictureRef>) {
    return ObjectRef(value);
  } else {
    return value;
  }
}

// One parameter of a method: the local that the call sees.
template <class P>
class Slot {
 public:
  // Pointers are optional outputs; references outputs; anything else input.
  static constexpr bool kOptionalOut = std::is_pointer_v<P>;
  static constexpr bool kOut = kOptionalOut || (std::is_lvalue_reference_v<P> &&
                                                !std::is_const_v<std::remove_reference_t<P>>);
  using Value = std::remove_cvref_t<std::remove_pointer_t<P>>;

  void Load(const Variant& v) { value_ = FromVariant<Value>(v); }
  bool Loaded() const { return value_.has_value(); }

  P Arg() {
    if constexpr (kOptionalOut) {
      return value_ ? &*value_ : nullptr;
    } else {
      return *value_;
    }
  }
  Variant Result() const { return ToVariant(*value_); }

 private:
  std::optional<Value> value_;
};

std::string ArgumentText(std::size_t index, std::string_view method) {
  return "argument " + std::to_string(index + 1) + " of " + std::string(method);
}

template <class R, class... P>
Variant Call(R (KySaisie::*method)(P...), std::string_view name, const Defaults& defaults,
             KySaisie& self, std::vector<Variant>& args) {
  constexpr std::size_t count = sizeof...(P);
  if (args.size() > count) {
    throw PlatformError::WrongArgumentCount(std::string(name) + " takes at most " +
                                            std::to_string(count));
  }
  std::tuple<Slot<P>...> slots;
  const std::size_t first_default = count - defaults.size();
  auto load = [&]<std::size_t I>(std::integral_constant<std::size_t, I>) {
    auto& slot = std::get<I>(slots);
    try {
      if (I < args.size()) {
        slot.Load(args[I]);
      } else if (I >= first_default) {
        // An optional output whose default is Empty is left out: nullptr,
        // as in a direct call.
        const Variant& value = defaults[I - first_default];
        using S = std::remove_reference_t<decltype(slot)>;
        if (!(S::kOptionalOut && std::holds_alternative<Empty>(value))) slot.Load(value);
      } else if (!std::remove_reference_t<decltype(slot)>::kOptionalOut) {
        throw PlatformError::ArgumentNotOptional(ArgumentText(I, name));
      }
    } catch (const PlatformError& e) {
      if (e.Number() == 449) throw;
      throw PlatformError(e.Number(), e.Description() + " (" + ArgumentText(I, name) + ")");
    }
  };
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    (load(std::integral_constant<std::size_t, I>{}), ...);
  }(std::index_sequence_for<P...>{});

  auto invoke = [&]<std::size_t... I>(std::index_sequence<I...>) -> Variant {
    if constexpr (std::is_void_v<R>) {
      (self.*method)(std::get<I>(slots).Arg()...);
      return Empty{};
    } else {
      return Variant((self.*method)(std::get<I>(slots).Arg()...));
    }
  };
  // Outputs are written back whether the method ends or raises, as a caller
  // bound by reference sees every change made before an error.
  auto store = [&]<std::size_t I>(std::integral_constant<std::size_t, I>) {
    auto& slot = std::get<I>(slots);
    if (std::remove_reference_t<decltype(slot)>::kOut && I < args.size() && slot.Loaded()) {
      args[I] = slot.Result();
    }
  };
  auto store_all = [&] {
    [&]<std::size_t... I>(std::index_sequence<I...>) {
      (store(std::integral_constant<std::size_t, I>{}), ...);
    }(std::index_sequence_for<P...>{});
  };
  Variant result;
  try {
    result = invoke(std::index_sequence_for<P...>{});
  } catch (...) {
    store_all();
    throw;
  }
  store_all();
  return result;
}

template <class R, class... P>
constexpr std::size_t Arity(R (KySaisie::*)(P...)) {
  return sizeof...(P);
}

template <class M>
MethodInfo Built(std::string_view name, M method, Defaults defaults = {}) {
  return {name, 0,
          [name, method, defaults](KySaisie& self, std::vector<Variant>& args) {
            return Call(method, name, defaults, self, args);
          },
          defaults, Arity(method)};
}

std::vector<MethodInfo> BuildTable() {
  using K = KySaisie;
  const Variant nothing = ObjectRef{};
  std::vector<MethodInfo> t = {
      Built("IntercepteClavierKY", &K::IntercepteClavierKY),
      Built("GestKeyDown", &K::GestKeyDown),
      Built("GestKeyPress", &K::GestKeyPress),
      Built("ModifClavier", &K::ModifClavier),
      Built("ClavierVirtuelToucheFonction", &K::ClavierVirtuelToucheFonction),
      Built("ClavierVirtuel", &K::ClavierVirtuel, {Integer{0}, true}),
      Built("VideClavierVirtuel", &K::VideClavierVirtuel),
      Built("VideClavier", &K::VideClavier),
      Built("Modif", &K::Modif, {String(u"B"), nothing, Single{0}, Single{0}}),
      Built("Ctrl_C", &K::Ctrl_C),
      Built("FnMot", &K::FnMot),
      Built("FormatDate", &K::FormatDate),
      Built("Saisie", &K::Saisie),
      Built("ScanClavier", &K::ScanClavier),
      Built("Dorvi", &K::Dorvi),
      Built("EcrSais", &K::EcrSais),
      Built("GénèreControl", &K::GénèreControl),
      Built("EffaceZoneSaisie", &K::EffaceZoneSaisie, {Long{-1}, nothing}),
      Built("EffaceLigneColT", &K::EffaceLigneColT),
      Built("EffaceLignes", &K::EffaceLignes),
      Built("EffaceLigne", &K::EffaceLigne, {Integer{1}}),
      Built("RechRub", &K::RechRub),
      Built("CodeType", &K::CodeType),
      Built("DecodeType", &K::DecodeType),
      Built("SaisDon", &K::SaisDon, {Empty{}, String(u"[]"), String(u"B")}),
      Built("ModD", &K::ModD,
            {Long{0}, Long{0}, String(u"F"), Empty{}, String(u"[]"), String(u"B")}),
      Built("ModDT", &K::ModDT,
            {Long{0}, Long{0}, String(u"F"), Empty{}, String(u"[]"), String(u"B"), nothing,
             Single{0}, Single{0}, Empty{}}),
      Built("TrLogS", &K::TrLogS),
      Built("TransLogS", &K::TransLogS),
      Built("TransSLog", &K::TransSLog),
      Built("Sai", &K::Sai, {false, String(u"[]"), String(u"B")}),
      Built("SaiD", &K::SaiD, {String(u"B")}),
      Built("SaiF", &K::SaiF, {String(u"B")}),
      Built("SaisDonnee", &K::SaisDonnee, {Empty{}, String(u"[]"), String(u"B")}),
      Built("SaisL", &K::SaisL, {String(u"B")}),
      Built("SaiLON", &K::SaiLON, {String(u"B")}),
      Built("ConsDon", &K::ConsDon),
      Built("AffDon", &K::AffDon),
      Built("PosAD", &K::PosAD),
      Built("MesAD", &K::MesAD),
      Built("ImageAD", &K::ImageAD),
      Built("MesSD", &K::MesSD, {false}),
      Built("ImageSD", &K::ImageSD),
      Built("MesSR", &K::MesSR, {false, false}),
      Built("PosAffRub", &K::PosAffRub),
      Built("PosAff", &K::PosAff),
      Built("AffPos", &K::AffPos, {Long{1}}),
      Built("AffPosT", &K::AffPosT),
      Built("AffBloc", &K::AffBloc, {false, true, false}),
      Built("AffMesCoul", &K::AffMesCoul, {true, Single{-1}}),
      Built("TailleMesCoul", &K::TailleMesCoul),
      Built("LongMesCoul", &K::LongMesCoul),
      Built("AfficheBlocMes", &K::AfficheBlocMes),
      Built("EspaceFeuille", &K::EspaceFeuille),
      Built("Centrage", &K::Centrage, {Long{0}}),
      Built("EffaceEcran", &K::EffaceEcran, {false}),
      Built("MessageAttente", &K::MessageAttente),
      Built("Attente", &K::Attente),
      Built("InitKyF", &K::InitKyF),
      Built("DimensionFeuille", &K::DimensionFeuille, {Integer{80}}),
      Built("DimensionFeuilleLT", &K::DimensionFeuilleLT, {false}),
      Built("MemEcr", &K::MemEcr),
      Built("ResEcr", &K::ResEcr),
      Built("MemEcrSais", &K::MemEcrSais),
      Built("ResEcrSais", &K::ResEcrSais),
      Built("HauteurTexte", &K::HauteurTexte),
      Built("WinLigne", &K::WinLigne),
      Built("LigneWin", &K::LigneWin),
      Built("LargeurTexte", &K::LargeurTexte),
      Built("WinCol", &K::WinCol),
      Built("ColWin", &K::ColWin),
      Built("NbLigne", &K::NbLigne),
      Built("NbCol", &K::NbCol),
      Built("MesBasEcran", &K::MesBasEcran),
      Built("AfficheCentre", &K::AfficheCentre, {true, Empty{}}),
      Built("Affiche", &K::Affiche),
      Built("AfficheColT", &K::AfficheColT),
      Built("AfficheT", &K::AfficheT),
      Built("Aff", &K::Aff),
      Built("AffLig", &K::AffLig),
      Built("AffL", &K::AffL),
      Built("AffSL", &K::AffSL),
      Built("TraceColonne", &K::TraceColonne),
      Built("Titre", &K::Titre),
      Built("CouleurFond", &K::CouleurFond),
      Built("Couleur", &K::Couleur),
      Built("AffTab", &K::AffTab, {Single{0}}),
      Built("NLTab", &K::NLTab),
      Built("CTab", &K::CTab),
      Built("LTab", &K::LTab),
      Built("RechIdenTab", &K::RechIdenTab),
      Built("AfficheZoneMessage", &K::AfficheZoneMessage),
      Built("EffaceZoneMessage", &K::EffaceZoneMessage),
  };
  for (std::size_t i = 0; i < t.size(); ++i) t[i].dispid = kFirstDispId + static_cast<Long>(i);
  return t;
}

}  // namespace

std::span<const MethodInfo> MethodTable() {
  static const std::vector<MethodInfo> table = BuildTable();
  return table;
}

const MethodInfo* FindMethod(std::string_view name) {
  for (const MethodInfo& m : MethodTable()) {
    if (SameName(m.name, name)) return &m;
  }
  return nullptr;
}

}  // namespace ferlan

// The environment object: a view of the host's shared EnvState, with typed
// members for the component and late-bound members by name for hosts and
// tools ("Env.ToucheEntree").
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "ferlan/host.hpp"
#include "kit/kit.hpp"

namespace ferlan::kit {

class Env : public ferlan::Env {
 public:
  explicit Env(std::shared_ptr<EnvState> state);

  // Every member below by name, case-insensitive; 438 for any other name.
  Variant GetProperty(std::string_view name) override;
  void SetProperty(std::string_view name, const Variant& value) override;

  FormRef KyF() override { return state_->form; }
  PictureBoxRef ZoneAff() override { return state_->surface; }
  Form* KyFView() override { return state_->form.get(); }
  PictureBox* ZoneAffView() override { return state_->surface.get(); }
  void SetZoneAff(PictureBoxRef zone) override { state_->surface = std::move(zone); }
  Single CourantX() override { return state_->CourantX; }
  void SetCourantX(Single v) override { state_->CourantX = v; }
  Single CourantY() override { return state_->CourantY; }
  void SetCourantY(Single v) override { state_->CourantY = v; }
  Integer MargeX() override { return state_->MargeX; }
  Integer MargeY() override { return state_->MargeY; }
  Single TaillePolice() override { return state_->TaillePolice; }

  Long Noir() override { return state_->Noir; }
  Long Bleu() override { return state_->Bleu; }
  Long Marron() override { return state_->Marron; }
  Long CouleurB() override { return state_->CouleurB; }
  Long Gris() override { return state_->Gris; }
  Long GrisFonce() override { return state_->GrisFonce; }
  Long GrisClair() override { return state_->GrisClair; }
  Long Rouge() override { return state_->Rouge; }
  Long Jaune() override { return state_->Jaune; }
  Long Blanc() override { return state_->Blanc; }
  Long GrisTresClair() override { return state_->GrisTresClair; }

  Integer ToucheF1() override { return state_->ToucheF1; }
  Integer ToucheF12() override { return state_->ToucheF12; }
  Integer ToucheGauche() override { return state_->ToucheGauche; }
  Integer ToucheDroite() override { return state_->ToucheDroite; }
  Integer ToucheHaut() override { return state_->ToucheHaut; }
  Integer ToucheBas() override { return state_->ToucheBas; }
  Integer TouchePageHaut() override { return state_->TouchePageHaut; }
  Integer TouchePageBas() override { return state_->TouchePageBas; }
  Integer ToucheEntree() override { return state_->ToucheEntree; }
  Integer ToucheVide() override { return state_->ToucheVide; }
  Integer ToucheRetour() override { return state_->ToucheRetour; }

  Boolean ToucheVirtuelle() override { return state_->ToucheVirtuelle; }
  void SetToucheVirtuelle(Boolean v) override { state_->ToucheVirtuelle = v; }
  Boolean SaisieOK() override { return state_->SaisieOK; }
  void SetSaisieOK(Boolean v) override { state_->SaisieOK = v; }
  Boolean Abandon() override { return state_->Abandon; }
  void SetRubCourante(Long v) override { state_->RubCourante = v; }

  String DateTitre() override { return state_->DateTitre; }
  String CodeEnt() override { return state_->CodeEnt; }
  String NomEnt() override { return state_->NomEnt; }
  String SujetAide() override { return state_->SujetAide; }

 private:
  std::shared_ptr<EnvState> state_;
};

// The names GetProperty and SetProperty know, in the spelling of the table.
std::vector<std::string_view> EnvPropertyNames();

}  // namespace ferlan::kit

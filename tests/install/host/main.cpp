// A host application built against the installed package.
#include <iostream>

#include "ferlan/kysaisie.hpp"
#include "headless/session.hpp"

int main() {
  ferlan::headless::Session session;
  ferlan::KySaisie component;
  std::cout << "WinLigne(2.5) = " << component.WinLigne(2.5f) << '\n';
  return 0;
}

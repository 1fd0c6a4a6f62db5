// The platform's services that the logic sees only through rules/: the clock and the message box.
#pragma once

// Installs the system clock as the game clock and, when a display is there, SDL message
// boxes; without a display the messages keep going to stderr.
void Installer_Plateforme();

// Seconds since local midnight, with the fraction of the current second.
float Horloge_Systeme();

// True when windows can be shown: no dummy or offscreen video driver is asked for, and
// either SDL video already runs on a real driver or an X11 or Wayland display is named.
bool Affichage_Disponible();

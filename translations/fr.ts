<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Actions</name>
    <message>
        <source>Empty slot</source>
        <translation>Place vide</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Taper</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>Défiler</translation>
    </message>
    <message>
        <source>Pg up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Pg down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Double</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Glisser</translation>
    </message>
    <message>
        <source>R-click</source>
        <translation>Clic dr.</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Tenir</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>Apps</source>
        <translation>Applis</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Plus fort</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Moins fort</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus vite</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Moins vite</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Again</source>
        <translation>Encore</translation>
    </message>
</context>
<context>
    <name>Agent</name>
    <message>
        <source>No X11 display can be reached.</source>
        <translation>Aucun écran X11 n’est accessible.</translation>
    </message>
    <message>
        <source>The X11 display has no %1, which scanning needs.</source>
        <translation>L’écran X11 n’a pas %1, dont le balayage a besoin.</translation>
    </message>
    <message>
        <source>Another program scans already.</source>
        <translation>Un autre programme balaie déjà.</translation>
    </message>
    <message>
        <source>Korvex can&apos;t scan: no process can be started.</source>
        <translation>Korvex ne peut pas balayer : aucun processus ne peut être lancé.</translation>
    </message>
    <message>
        <source>Scanning is off. Hold your switch for four seconds to switch it on again.</source>
        <translation>Le balayage est à l’arrêt. Maintenez votre contacteur quatre secondes pour le remettre en marche.</translation>
    </message>
    <message>
        <source>Another program has these keys: %1. Choose others under Presses.</source>
        <translation>Un autre programme a ces touches : %1. Choisissez-en d’autres dans « Appuis ».</translation>
    </message>
    <message>
        <source>Scanning is on.</source>
        <translation>Le balayage est en marche.</translation>
    </message>
    <message>
        <source>No window is active.</source>
        <translation>Aucune fenêtre n’est active.</translation>
    </message>
    <message>
        <source>The window manager can&apos;t close windows for others.</source>
        <translation>Le gestionnaire de fenêtres ne peut pas fermer de fenêtres pour d’autres.</translation>
    </message>
    <message>
        <source>The window manager can&apos;t show the desktop.</source>
        <translation>Le gestionnaire de fenêtres ne peut pas montrer le bureau.</translation>
    </message>
    <message>
        <source>The scan is as fast as it can be.</source>
        <translation>Le balayage est aussi rapide que possible.</translation>
    </message>
    <message>
        <source>The scan is as slow as it can be.</source>
        <translation>Le balayage est aussi lent que possible.</translation>
    </message>
    <message>
        <source>A terminal can&apos;t cut. Choose Copy.</source>
        <translation>Un terminal ne peut pas couper. Choisissez « Copier ».</translation>
    </message>
    <message>
        <source>A terminal can&apos;t undo.</source>
        <translation>Un terminal ne peut rien annuler.</translation>
    </message>
    <message>
        <source>This terminal can&apos;t copy for other programs.</source>
        <translation>Ce terminal ne peut pas copier pour d’autres programmes.</translation>
    </message>
    <message>
        <source>The volume needs pactl. Install pulseaudio-utils.</source>
        <translation>Le volume a besoin de pactl. Installez pulseaudio-utils.</translation>
    </message>
    <message>
        <source>No sound server answers.</source>
        <translation>Aucun serveur de son ne répond.</translation>
    </message>
    <message>
        <source>The keyboard has no key for %1.</source>
        <translation>Le clavier n’a pas de touche pour %1.</translation>
    </message>
    <message>
        <source>To type on the screen, install Onboard.</source>
        <translation>Pour écrire à l’écran, installez Onboard.</translation>
    </message>
    <message>
        <source>Onboard, the keyboard on the screen, doesn&apos;t start.</source>
        <translation>Onboard, le clavier à l’écran, ne démarre pas.</translation>
    </message>
    <message>
        <source>This desktop has no menu of applications that Korvex can open.</source>
        <translation>Ce bureau n’a pas de menu d’applications que Korvex puisse ouvrir.</translation>
    </message>
    <message>
        <source>No window is open.</source>
        <translation>Aucune fenêtre n’est ouverte.</translation>
    </message>
    <message>
        <source>The window manager can&apos;t bring windows to the front.</source>
        <translation>Le gestionnaire de fenêtres ne peut pas mettre de fenêtre au premier plan.</translation>
    </message>
    <message>
        <source>The menu doesn&apos;t open.</source>
        <translation>Le menu ne s’ouvre pas.</translation>
    </message>
    <message>
        <source>This window has no menu that Korvex can open.</source>
        <translation>Cette fenêtre n’a pas de menu que Korvex puisse ouvrir.</translation>
    </message>
    <message>
        <source>Scanning pauses. Hold your switch for four seconds to go on.</source>
        <translation>Le balayage est en pause. Maintenez votre contacteur quatre secondes pour continuer.</translation>
    </message>
    <message>
        <source>Korvex can&apos;t scan: the desktop refuses its remote control.</source>
        <translation>Korvex ne peut pas balayer : le bureau refuse son contrôle à distance.</translation>
    </message>
    <message>
        <source>Korvex hears no switch yet: the desktop&apos;s shortcuts must tell it of presses. The help says how, under &quot;On Wayland&quot;.</source>
        <translation>Korvex n’entend pas encore de contacteur : des raccourcis du bureau doivent le lui dire. L’aide dit comment, « Sous Wayland ».</translation>
    </message>
    <message>
        <source>The Wayland session can&apos;t be reached.</source>
        <translation>La session Wayland ne peut pas être jointe.</translation>
    </message>
    <message>
        <source>Korvex can&apos;t scan in this Wayland session: it has no %1. Log out, and choose a session with X11 where you log in.</source>
        <translation>Korvex ne peut pas balayer dans cette session Wayland : il y manque %1. Fermez la session, et choisissez-en une avec X11 en ouvrant la suivante.</translation>
    </message>
    <message>
        <source>The desktop doesn&apos;t tell when your switch comes up. Only &quot;Press to start, press to choose&quot; works, with short presses.</source>
        <translation>Le bureau ne dit pas quand vous relâchez. Seul « Appuyer pour lancer, appuyer pour choisir » fonctionne, par appuis courts.</translation>
    </message>
    <message>
        <source>To type on the screen, install Squeekboard and have it started at login.</source>
        <translation>Pour taper sur l’écran, installez Squeekboard et faites-le lancer à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Squeekboard, the keyboard on the screen, doesn&apos;t answer.</source>
        <translation>Squeekboard, le clavier à l’écran, ne répond pas.</translation>
    </message>
</context>
<context>
    <name>Changes</name>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1&#xa0;: %2 devient %3</translation>
    </message>
    <message>
        <source>%1: %2 back to %3</source>
        <translation>%1&#xa0;: %2 redevient %3</translation>
    </message>
    <message>
        <source>Reset everything</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Nothing to reset</source>
        <translation>Rien à réinitialiser</translation>
    </message>
    <message>
        <source>Reset everything: 1 setting</source>
        <translation>Tout réinitialiser : 1 réglage</translation>
    </message>
    <message numerus="yes">
        <source>Reset everything: %n settings</source>
        <translation>
            <numerusform>Tout réinitialiser : %n réglage</numerusform>
            <numerusform>Tout réinitialiser : %n réglages</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset 1 setting</source>
        <translation>Réinitialiser 1 réglage</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings</source>
        <translation>
            <numerusform>Réinitialiser %n réglage</numerusform>
            <numerusform>Réinitialiser %n réglages</numerusform>
        </translation>
    </message>
    <message>
        <source>The palette has its original buttons again.</source>
        <translation>La palette a de nouveau ses boutons d’origine.</translation>
    </message>
    <message>
        <source>%1, and 1 more setting</source>
        <translation>%1, et 1 autre réglage</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more settings</source>
        <translation>
            <numerusform>%1, et %n autre réglage</numerusform>
            <numerusform>%1, et %n autres réglages</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset “%1” to its default</source>
        <translation>Réinitialiser « %1 »</translation>
    </message>
    <message>
        <source>Reset “%1” to %3</source>
        <translation>Réinitialiser « %1 » à %3</translation>
    </message>
    <message>
        <source>Undo this</source>
        <translation>Annuler ceci</translation>
    </message>
</context>
<context>
    <name>Choices</name>
    <message>
        <source>Press to start, press to choose</source>
        <translation>Appuyer pour lancer, appuyer pour choisir</translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation>Maintenir pour balayer, relâcher pour choisir</translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation>Chaque appui avance d’un pas</translation>
    </message>
    <message>
        <source>When I press</source>
        <translation>Quand j’appuie</translation>
    </message>
    <message>
        <source>When I let go</source>
        <translation>Quand je relâche</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Tout l’écran</translation>
    </message>
    <message>
        <source>Only my own area</source>
        <translation>Seulement ma zone</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carrés</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrondis</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>%1, very light</source>
        <translation>%1, très clair</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>%1, light</source>
        <translation>%1, clair</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>%1, dark</source>
        <translation>%1, foncé</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>%1, very dark</source>
        <translation>%1, très foncé</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Choisir une couleur</translation>
    </message>
    <message>
        <source>A colour that you press shows at once.</source>
        <translation>La couleur sur laquelle vous appuyez se voit aussitôt.</translation>
    </message>
    <message>
        <source>&amp;Use this colour</source>
        <translation>&amp;Utiliser cette couleur</translation>
    </message>
    <message>
        <source>&amp;More colours…</source>
        <translation>&amp;Plus de couleurs…</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>Colour</name>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Bleu clair</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Buff</source>
        <translation>Chamois</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a colour like that name, and its code</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>every key needs a value</source>
        <translation>chaque clé demande une valeur</translation>
    </message>
    <message>
        <source>there is no setting &quot;%1&quot;</source>
        <translation>il n’y a pas de réglage «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Shows every setting: its key, value, default, range and what it is.</source>
        <translation>Montre chaque réglage&#xa0;: sa clé, sa valeur, sa valeur par défaut, ses limites et ce qu’il est.</translation>
    </message>
    <message>
        <source>KEY…</source>
        <translation>CLÉ…</translation>
    </message>
    <message>
        <source>KEY VALUE…</source>
        <translation>CLÉ VALEUR…</translation>
    </message>
    <message>
        <source>Changes settings.</source>
        <translation>Change des réglages.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>Writes the settings to a file; - stands for standard output.</source>
        <translation>Écrit les réglages dans un fichier&#xa0;; - désigne la sortie standard.</translation>
    </message>
    <message>
        <source>Prints the completion for bash.</source>
        <translation>Affiche l’autocomplétion pour bash.</translation>
    </message>
    <message>
        <source>Prints the manual page&apos;s part on commands and settings.</source>
        <translation>Affiche la partie de la page de manuel sur les commandes et les réglages.</translation>
    </message>
    <message>
        <source>Usage: korvex-preferences COMMAND [--json] [--yes] …</source>
        <translation>Utilisation&#xa0;: korvex-preferences COMMANDE [--json] [--yes] …</translation>
    </message>
    <message>
        <source>See korvex-preferences help.</source>
        <translation>Voir korvex-preferences help.</translation>
    </message>
    <message>
        <source>there is no command &quot;%1&quot;</source>
        <translation>il n’y a pas de commande «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 takes %2</source>
        <translation>%1 attend %2</translation>
    </message>
    <message>
        <source>%1 takes no operand</source>
        <translation>%1 n’attend aucun opérande</translation>
    </message>
    <message>
        <source>Nothing differs from the settings as they are.</source>
        <translation>Rien ne diffère des réglages actuels.</translation>
    </message>
    <message>
        <source>Left out: %1: %2</source>
        <translation>Laissé de côté&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 (in use)</source>
        <translation>%1 (utilisé)</translation>
    </message>
    <message>
        <source>Nothing was changed. With --yes it is.</source>
        <translation>Rien n’a été changé. Avec --yes, cela l’est.</translation>
    </message>
    <message>
        <source>default: %1</source>
        <translation>par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>can&apos;t store the settings in %1</source>
        <translation>impossible d’enregistrer les réglages dans %1</translation>
    </message>
    <message>
        <source>COMMANDS</source>
        <comment>a heading of the manual page</comment>
        <translation>COMMANDES</translation>
    </message>
    <message>
        <source>Opens the window at that section, or brings it to the front there.</source>
        <translation>Ouvre la fenêtre à cette section, ou l’y amène au premier plan.</translation>
    </message>
    <message>
        <source>there is no section &quot;%1&quot;, but %2</source>
        <translation>il n’y a pas de section «&#xa0;%1&#xa0;», mais %2</translation>
    </message>
    <message>
        <source>SECTION</source>
        <translation>SECTION</translation>
    </message>
    <message>
        <source>None but show needs a display. A change goes through the open window if there is one; else it is stored, and sent to the running agent.</source>
        <translation>Aucune sauf show n’a besoin d’un écran. Un changement passe par la fenêtre ouverte s’il y en a une&#xa0;; sinon il est enregistré et envoyé à l’agent en marche.</translation>
    </message>
    <message>
        <source>SETTINGS</source>
        <comment>a heading of the manual page</comment>
        <translation>RÉGLAGES</translation>
    </message>
    <message>
        <source>%1 (in use, changed)</source>
        <translation>%1 (utilisé, modifié)</translation>
    </message>
    <message>
        <source>list|use|compare|save|rename|delete [NAME…]</source>
        <translation>list|use|compare|save|rename|delete [NOM…]</translation>
    </message>
    <message>
        <source>Lists, uses and compares named states of the settings; compare says what differs between two, or between one and the settings.</source>
        <translation>Liste, utilise et compare des états nommés des réglages&#xa0;; compare dit ce qui distingue deux d’entre eux, ou un seul des réglages.</translation>
    </message>
    <message>
        <source>which profile is in use can&apos;t be kept: %1</source>
        <translation>impossible de retenir quel profil est utilisé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Rien ne diffère.</translation>
    </message>
    <message>
        <source>profile list, use NAME, compare NAME [OTHER], save NAME, rename NAME NEW or delete NAME</source>
        <translation>profile list, use NOM, compare NOM [AUTRE], save NOM, rename NOM NOUVEAU ou delete NOM</translation>
    </message>
    <message>
        <source>See korvex-preferences list.</source>
        <translation>Voir korvex-preferences list.</translation>
    </message>
    <message>
        <source>there is no option &quot;%1&quot;</source>
        <translation>il n’y a pas d’option «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Resets settings to their defaults; &quot;all&quot; stands for all of them.</source>
        <translation>Réinitialise des réglages ; « all » vaut pour tous.</translation>
    </message>
    <message>
        <source>answers for programs: numbers are numbers, yes and no are true and false, and what changes is a list of key, from and to</source>
        <translation>réponses pour des programmes : les nombres sont des nombres, oui et non sont true et false, et ce qui change est une liste de key, from et to</translation>
    </message>
    <message>
        <source>lets import change the settings; no other command asks</source>
        <translation>laisse import changer les réglages ; aucune autre commande ne demande</translation>
    </message>
    <message>
        <source>Shows the value of settings, as set takes it in every language.</source>
        <translation>Montre la valeur de réglages, telle que set la prend dans toutes les langues.</translation>
    </message>
    <message>
        <source>Shows what a file would change; with --yes, changes it. - stands for standard input.</source>
        <translation>Montre ce qu’un fichier changerait ; avec --yes, le change. - désigne l’entrée standard.</translation>
    </message>
    <message>
        <source>standard output: %1</source>
        <translation>sortie standard : %1</translation>
    </message>
    <message>
        <source>--json goes with a file, not with -</source>
        <translation>--json va avec un fichier, pas avec -</translation>
    </message>
    <message>
        <source>For a shortcut of a Wayland desktop: tells Korvex that this key, or else the scan key, went down.</source>
        <translation>Pour un raccourci d’un bureau Wayland : dit à Korvex que cette touche, sinon la touche de balayage, est enfoncée.</translation>
    </message>
    <message>
        <source>The same when it comes up.</source>
        <translation>La même chose quand elle est relâchée.</translation>
    </message>
    <message>
        <source>Prints such shortcuts for your hot keys, as sway&apos;s configuration has them.</source>
        <translation>Écrit de tels raccourcis pour vos raccourcis clavier, comme la configuration de sway les a.</translation>
    </message>
    <message>
        <source>there is no key &quot;%1&quot;, but %2</source>
        <translation>il n’y a pas de touche « %1 », mais %2</translation>
    </message>
    <message>
        <source>Korvex isn&apos;t running</source>
        <translation>Korvex ne tourne pas</translation>
    </message>
    <message>
        <source>Korvex hears the keys itself in this session, or can&apos;t scan in it</source>
        <translation>Dans cette session, Korvex entend lui-même les touches, ou ne peut pas balayer</translation>
    </message>
    <message>
        <source>Korvex doesn&apos;t answer</source>
        <translation>Korvex ne répond pas</translation>
    </message>
</context>
<context>
    <name>Faults</name>
    <message>
        <source>the change can&apos;t be sent</source>
        <translation>le changement ne peut pas être envoyé</translation>
    </message>
    <message>
        <source>the open window doesn&apos;t take the change</source>
        <translation>la fenêtre ouverte refuse le changement</translation>
    </message>
    <message>
        <source>a profile needs a name</source>
        <translation>un profil a besoin d’un nom</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>a name has no slash, no control character and no blank at its ends, and doesn&apos;t begin with a point</source>
        <translation>un nom ne contient ni barre oblique ni caractère de contrôle, n’a pas d’espace à ses extrémités et ne commence pas par un point</translation>
    </message>
    <message>
        <source>there is no profile of that name</source>
        <translation>il n’y a pas de profil de ce nom</translation>
    </message>
    <message>
        <source>there is a profile of that name</source>
        <translation>il y a déjà un profil de ce nom</translation>
    </message>
    <message>
        <source>outside %1</source>
        <translation>hors de %1</translation>
    </message>
    <message>
        <source>none of: %1</source>
        <translation>aucun de&#xa0;: %1</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>ce n’est pas un nombre</translation>
    </message>
    <message>
        <source>an action that there isn&apos;t</source>
        <translation>cette action n’existe pas</translation>
    </message>
    <message>
        <source>not a number in %1</source>
        <translation>ce n’est pas un nombre en %1</translation>
    </message>
    <message>
        <source>not a value of this setting</source>
        <translation>ce n’est pas une valeur de ce réglage</translation>
    </message>
    <message>
        <source>no setting of this version</source>
        <translation>ce n’est pas un réglage de cette version</translation>
    </message>
    <message>
        <source>there is no area of your own yet</source>
        <translation>il n’y a pas encore de zone à vous</translation>
    </message>
    <message>
        <source>larger than a file of settings can be</source>
        <translation>plus grand qu’un fichier de réglages ne peut l’être</translation>
    </message>
    <message>
        <source>damaged, or no file of settings</source>
        <translation>endommagé, ou pas un fichier de réglages</translation>
    </message>
    <message>
        <source>neither on nor off</source>
        <translation>ni on ni off</translation>
    </message>
    <message>
        <source>%1; for example %2</source>
        <translation>%1&#xa0;; par exemple %2</translation>
    </message>
    <message>
        <source>the open window doesn&apos;t answer; the change may still come</source>
        <translation>la fenêtre ouverte ne répond pas ; le changement peut encore venir</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>pas un nombre entier</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>It is running.</source>
        <translation>Il fonctionne.</translation>
    </message>
    <message>
        <source>It is starting…</source>
        <translation>Il démarre…</translation>
    </message>
    <message>
        <source>It isn’t running now.</source>
        <translation>Il ne fonctionne pas en ce moment.</translation>
    </message>
    <message>
        <source>None is installed yet.</source>
        <translation>Aucun n’est encore installé.</translation>
    </message>
    <message>
        <source>Press your switch, any key, or a mouse button in this field. It is filled while you press.</source>
        <translation>Appuyez sur votre contacteur, sur une touche ou, dans ce champ, sur un bouton de la souris. Le champ est rempli tant que vous appuyez.</translation>
    </message>
    <message>
        <source>It answers: 1 press.</source>
        <translation>Il répond&#xa0;: 1 appui.</translation>
    </message>
    <message numerus="yes">
        <source>It answers: %n presses.</source>
        <translation>
            <numerusform>Il répond&#xa0;: %n appui.</numerusform>
            <numerusform>Il répond&#xa0;: %n appuis.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pressed.</source>
        <translation>Appuyé.</translation>
    </message>
    <message>
        <source>%1 The last one took %2 seconds.</source>
        <comment>%1 is a sentence: It answers: 3 presses.</comment>
        <translation>%1 Le dernier a duré %2 s.</translation>
    </message>
    <message>
        <source>Press here</source>
        <translation>Appuyez ici</translation>
    </message>
    <message>
        <source>To go on with your switch, wait half a minute: then it scans again.</source>
        <translation>Pour continuer avec votre contacteur, attendez une demi-minute&#xa0;: il balaie alors de nouveau.</translation>
    </message>
    <message>
        <source>Hit! So you reach everything on the screen.</source>
        <translation>Touché ! Vous atteignez ainsi tout ce qui est à l’écran.</translation>
    </message>
    <message numerus="yes">
        <source>Hit %n times.</source>
        <translation>
            <numerusform>Touché %n fois.</numerusform>
            <numerusform>Touché %n fois.</numerusform>
        </translation>
    </message>
    <message>
        <source>It begins once Korvex runs.</source>
        <translation>Cela commence dès que Korvex est en marche.</translation>
    </message>
    <message>
        <source>It begins once Korvex is on.</source>
        <translation>Cela commence dès que Korvex est activé.</translation>
    </message>
</context>
<context>
    <name>Formats</name>
    <message numerus="yes">
        <source>%.0f points</source>
        <translation>
            <numerusform>%.0f point</numerusform>
            <numerusform>%.0f points</numerusform>
        </translation>
    </message>
    <message>
        <source>%5.1f sec</source>
        <translation>%5.1f s</translation>
    </message>
    <message>
        <source>%3.0f%%</source>
        <translation>%3.0f %%</translation>
    </message>
    <message numerus="yes">
        <source>%3.0f points</source>
        <translation>
            <numerusform>%3.0f point</numerusform>
            <numerusform>%3.0f points</numerusform>
        </translation>
    </message>
    <message>
        <source>%3.0f ms</source>
        <translation>%3.0f ms</translation>
    </message>
    <message>
        <source>%.0f point</source>
        <translation>%.0f point</translation>
    </message>
    <message>
        <source>%3.0f point</source>
        <translation>%3.0f point</translation>
    </message>
</context>
<context>
    <name>HelpViewer</name>
    <message>
        <source>Korvex Help</source>
        <translation>Aide de Korvex</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>No web browser could be opened. This is the help’s page without its looks; its file is %1.</source>
        <translation>Aucun navigateur n’a pu être ouvert. Voici la page de l’aide sans sa mise en forme&#xa0;; son fichier est %1.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Korvex.prefPane: not found beside this program</source>
        <translation>Korvex.prefPane&#xa0;: introuvable à côté de ce programme</translation>
    </message>
    <message>
        <source>it is open already, but doesn&apos;t answer</source>
        <translation>la fenêtre est déjà ouverte, mais ne répond pas</translation>
    </message>
    <message>
        <source>there is no section &apos;%1&apos;</source>
        <translation>il n’y a pas de section «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the settings aren&apos;t saved: %1</source>
        <translation>les réglages ne sont pas enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Usage: korvex-preferences [BUNDLE.prefPane]
       korvex-preferences COMMAND OPERANDS
       korvex-preferences --section NAME
       korvex-preferences --service
       korvex-preferences --check BUNDLE.prefPane

Shows the settings pane of the bundle, of Korvex&apos;s own without one.

  COMMAND         change or read settings without a window; see the command &quot;help&quot;
  --section NAME  show that section of the pane, for example &quot;palette&quot;
  --service       wait until the session bus asks for the window
  --check BUNDLE  load the bundle, check its interface files, show nothing
  --help          print this text
  --version       print the version
</source>
        <translation>Utilisation&#xa0;: korvex-preferences [PAQUET.prefPane]
       korvex-preferences COMMANDE OPÉRANDES
       korvex-preferences --section NOM
       korvex-preferences --service
       korvex-preferences --check PAQUET.prefPane

Montre le panneau de réglages du paquet, celui de Korvex par défaut.

  COMMANDE        change ou lit des réglages sans fenêtre&#xa0;; voir la commande «&#xa0;help&#xa0;»
  --section NOM   montre cette section du panneau, par exemple «&#xa0;palette&#xa0;»
  --service       attend que le bus de session demande la fenêtre
  --check PAQUET  charge le paquet, vérifie ses fichiers d’interface, ne montre rien
  --help          affiche ce texte
  --version       affiche la version
</translation>
    </message>
</context>
<context>
    <name>HotKeys</name>
    <message>
        <source>New keys for “%1”</source>
        <translation>Nouvelles touches pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Press new keys</source>
        <translation>Appuyer sur de nouvelles touches</translation>
    </message>
    <message>
        <source>Choose keys…</source>
        <translation>Choisir des touches…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Listening: press the new hot key, one key, alone or with Ctrl, Alt, Shift or Super held down. Every key counts, Esc and Tab too. Seconds left: %1.</source>
        <translation>À l’écoute&#xa0;: appuyez sur le nouveau raccourci, une touche, seule ou avec Ctrl, Alt, Maj ou Super. Chaque touche compte, Échap et Tab aussi. Secondes restantes&#xa0;: %1.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Now %1.</source>
        <translation>Maintenant %1.</translation>
    </message>
    <message>
        <source>Capturing: press the new keys.</source>
        <translation>À l’écoute&#xa0;: appuyez sur les nouvelles touches.</translation>
    </message>
    <message>
        <source>Turn scanning on or off</source>
        <translation>Marche ou arrêt du balayage</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Balayer</translation>
    </message>
    <message>
        <source>Cancel the scan</source>
        <translation>Annuler le balayage</translation>
    </message>
    <message>
        <source>Show these settings</source>
        <translation>Montrer ces réglages</translation>
    </message>
    <message>
        <source>Keys that this desktop uses itself aren’t heard here. “Choose keys…” in the menu has them too.</source>
        <translation>Les touches que ce bureau utilise lui-même n’arrivent pas ici. «&#xa0;Choisir des touches…&#xa0;» dans le menu les propose aussi.</translation>
    </message>
    <message>
        <source>Scan, second key</source>
        <translation>Balayer, deuxième touche</translation>
    </message>
    <message>
        <source>%1 (hot key)</source>
        <comment>as in Scan (hot key)</comment>
        <translation>%1 (raccourci)</translation>
    </message>
    <message>
        <source>Use these keys only here</source>
        <translation>N’utiliser ces touches qu’ici</translation>
    </message>
    <message>
        <source>Undo the change here</source>
        <translation>Annuler le changement ici</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>%1 on your keyboard</source>
        <translation>%1 sur votre clavier</translation>
    </message>
    <message>
        <source>⚠ The same keys as %1. The menu beside it offers to use them only here, or to undo the change.</source>
        <translation>⚠ Les mêmes touches que %1. Le menu à côté propose de ne les utiliser qu’ici, ou d’annuler le changement.</translation>
    </message>
</context>
<context>
    <name>Joints</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>two clauses of a sentence</comment>
        <translation>%1&#xa0;; %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two items of a list</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what something is, and a note on it</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a value, and a sentence on it</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>Keyboard</name>
    <message>
        <source>F13 or Print Screen</source>
        <translation>F13 ou Impr. écran</translation>
    </message>
    <message>
        <source>F14 or Scroll Lock</source>
        <translation>F14 ou Arrêt défil</translation>
    </message>
    <message>
        <source>F15 or Pause</source>
        <translation>F15 ou Pause</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inser</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Left arrow</source>
        <translation>Flèche gauche</translation>
    </message>
    <message>
        <source>Right arrow</source>
        <translation>Flèche droite</translation>
    </message>
    <message>
        <source>Up arrow</source>
        <translation>Flèche haut</translation>
    </message>
    <message>
        <source>Down arrow</source>
        <translation>Flèche bas</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Moins fort</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Plus fort</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <translation>Verr. num</translation>
    </message>
    <message>
        <source>keypad Enter</source>
        <translation>pavé num. Entrée</translation>
    </message>
    <message>
        <source>keypad %1</source>
        <translation>pavé num. %1</translation>
    </message>
    <message>
        <source>Super+</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>Shift+</source>
        <translation>Maj+</translation>
    </message>
    <message>
        <source>Alt+</source>
        <translation>Alt+</translation>
    </message>
</context>
<context>
    <name>Keys</name>
    <message>
        <source>return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>enter</source>
        <translation>pavé num. Entrée</translation>
    </message>
    <message>
        <source>esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>caps lock</source>
        <translation>Verr. maj</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>Verr. num</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Inser</translation>
    </message>
    <message>
        <source>home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>page up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>end</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>page down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>command+</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>control+</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>shift+</source>
        <translation>Maj+</translation>
    </message>
    <message>
        <source>option+</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source> keypad </source>
        <translation> pavé num. </translation>
    </message>
    <message>
        <source> fn </source>
        <translation> fn </translation>
    </message>
    <message>
        <source>-none-</source>
        <translation>-aucun-</translation>
    </message>
</context>
<context>
    <name>NSColorWell</name>
    <message>
        <source>Red %1, green %2, blue %3, each of 255</source>
        <translation>Rouge %1, vert %2, bleu %3, chacun sur 255</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>This desktop has no settings that could be opened here. The help says how to switch assistive access on.</source>
        <translation>Ce bureau n’a pas de réglages qui puissent être ouverts ici. L’aide dit comment activer l’accès d’assistance.</translation>
    </message>
</context>
<context>
    <name>NumberRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>As in &quot;Volume, louder&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, much %2</source>
        <translation>%1, beaucoup %2</translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>%1 less</source>
        <translation>%1 de moins</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>Only %1 to %2 can be set.</source>
        <translation>Seules les valeurs de %1 à %2 sont possibles.</translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <comment>a value, and what a press changes</comment>
        <translation>%1. %2.</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Choose the button to swap with button %1. The same button again, or Escape, cancels.</source>
        <translation>Choisissez le bouton à échanger avec le bouton %1. Le même bouton, ou Échap, annule.</translation>
    </message>
    <message>
        <source>Chosen: button %1.</source>
        <translation>Choisi&#xa0;: bouton %1.</translation>
    </message>
    <message>
        <source>Choose a button to change it.</source>
        <translation>Choisissez un bouton pour le changer.</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Place vide</translation>
    </message>
    <message>
        <source>Action %1</source>
        <translation>Action %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>number and name of a button</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Pane</name>
    <message>
        <source>Korvex</source>
        <translation>Korvex</translation>
    </message>
    <message>
        <source>Chooses another section of the settings.</source>
        <translation>Choisit une autre section des réglages.</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>Scanning with Korvex</source>
        <translation>Balayage avec Korvex</translation>
    </message>
    <message>
        <source>&lt;p&gt;Off stops scanning and keeps all settings. Hold Alt (Option) while you click to quit Korvex itself, or to start it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;«&#xa0;Arrêt&#xa0;» cesse le balayage et garde tous les réglages. Maintenez Alt en cliquant pour quitter Korvex lui-même, ou pour le lancer.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Turns scanning off and on. Your settings stay as they are.</source>
        <translation>Marche et arrêt du balayage. Vos réglages restent comme ils sont.</translation>
    </message>
    <message>
        <source>Stops scanning. With Alt held, quits Korvex.</source>
        <translation>Cesse le balayage. Avec Alt, quitte Korvex.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Makes Korvex ready to scan. With Alt held, starts Korvex if it is not running.</source>
        <translation>Prépare Korvex à balayer. Avec Alt, lance Korvex s’il n’est pas en marche.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Marche</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Makes a change again that was undone. Ctrl+Shift+Z does the same.</source>
        <translation>Rétablit un changement annulé. Ctrl+Maj+Z fait de même.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Makes a change again that was undone. Ctrl+Shift+Z does the same.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Rétablit un changement annulé. Ctrl+Maj+Z fait de même.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Sections of the settings</source>
        <translation>Sections des réglages</translation>
    </message>
    <message>
        <source>The arrow keys choose a section.</source>
        <translation>Les flèches choisissent une section.</translation>
    </message>
    <message>
        <source>&amp;Scanning</source>
        <translation>&amp;Balayage</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>&amp;Line crosses the screen in</source>
        <translation>La &amp;ligne traverse l’écran en</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>plus court</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>plus long</translation>
    </message>
    <message>
        <source>More time makes it easier to stop the line in the right place.</source>
        <translation>Avec plus de temps, il est plus facile d’arrêter la ligne au bon endroit.</translation>
    </message>
    <message>
        <source>&lt;p&gt;At 60 seconds, pressing one second late moves the line by only a sixtieth of the screen.&lt;/p&gt;</source>
        <translation>&lt;p&gt;À 60 secondes, un appui en retard d’une seconde ne déplace la ligne que d’un soixantième de l’écran.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Pointer &amp;crosses the screen in</source>
        <translation>Le pointeur traver&amp;se l’écran en</translation>
    </message>
    <message>
        <source>Once you have stopped the line, the pointer moves along it.</source>
        <translation>Une fois la ligne arrêtée, le pointeur avance le long d’elle.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Many people need as long here as for the line, because this press decides where the click lands.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beaucoup de personnes ont besoin d’autant de temps ici que pour la ligne, car cet appui décide où le clic tombe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Speed in &amp;menus</source>
        <translation>Vitesse dans les &amp;menus</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>plus lent</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>plus rapide</translation>
    </message>
    <message>
        <source>100% is as fast as on the rest of the screen. Menu items are small, so slower is easier.</source>
        <translation>100 % est aussi rapide que sur le reste de l’écran. Les menus sont petits&#xa0;: plus lent est plus facile.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Below 100 a menu gives you more time than the rest of the screen; above 100 it saves waiting.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Sous 100, un menu vous laisse plus de temps que le reste de l’écran&#xa0;; au-dessus de 100, l’attente est plus courte.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Start slowly, then speed up</source>
        <translation>Commencer lentement, puis accélérer</translation>
    </message>
    <message>
        <source>Gives you time for things near the start without a long wait for those far away.</source>
        <translation>Laisse du temps pour ce qui est proche du départ, sans longue attente pour ce qui est loin.</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Press your switch a few times and see which speed suits you.</source>
        <translation>Appuyez quelques fois et voyez quelle vitesse vous convient.</translation>
    </message>
    <message>
        <source>Find my speed</source>
        <translation>Trouver ma vitesse</translation>
    </message>
    <message>
        <source>Find my speed…</source>
        <translation>Trouver ma vitesse…</translation>
    </message>
    <message>
        <source>Pauses and clicks</source>
        <translation>Pauses et clics</translation>
    </message>
    <message>
        <source>&amp;Wait before the scan starts</source>
        <translation>&amp;Attendre avant le départ du balayage</translation>
    </message>
    <message>
        <source>&lt;p&gt;Enough to settle back and look at the screen before anything moves.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Assez pour se réinstaller et regarder l’écran avant que rien ne bouge.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>R&amp;epeat an action every</source>
        <translation>&amp;Répéter une action toutes les</translation>
    </message>
    <message>
        <source>Actions such as scrolling go on at this pace until you press again.</source>
        <translation>Des actions comme le défilement continuent à ce rythme jusqu’au prochain appui.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Short suits scrolling; long leaves time to stop after a single repeat.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Court convient au défilement&#xa0;; long laisse le temps d’arrêter après une seule répétition.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Length of a clic&amp;k</source>
        <translation>D&amp;urée d’un clic</translation>
    </message>
    <message>
        <source>How long Korvex holds the mouse button down. Make it longer if a program misses clicks.</source>
        <translation>Le temps pendant lequel Korvex garde le bouton de la souris enfoncé. Augmentez-le si un programme manque des clics.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A few programs, games above all, miss a click of less than 50; above 300 many see a long press.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Quelques programmes, surtout des jeux, manquent un clic de moins de 50&#xa0;; au-delà de 300, beaucoup y voient un appui long.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What is scanned</source>
        <translation>Ce qui est balayé</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Balayer</translation>
    </message>
    <message>
        <source>Which part of the screen is scanned.</source>
        <translation>La partie de l’écran qui est balayée.</translation>
    </message>
    <message>
        <source>The whole screen</source>
        <translation>Tout l’écran</translation>
    </message>
    <message>
        <source>The line crosses the whole screen.</source>
        <translation>La ligne traverse tout l’écran.</translation>
    </message>
    <message>
        <source>Only my own area</source>
        <translation>Seulement ma zone</translation>
    </message>
    <message>
        <source>A smaller area takes less time. It is the part that you choose, draw or type below.</source>
        <translation>Une zone plus petite prend moins de temps. C’est celle que vous choisissez, dessinez ou saisissez ci-dessous.</translation>
    </message>
    <message>
        <source>Part of the screen</source>
        <translation>Partie de l’écran</translation>
    </message>
    <message>
        <source>Parts of the screen</source>
        <translation>Parties de l’écran</translation>
    </message>
    <message>
        <source>The arrow keys go from one to the next; Space chooses it.</source>
        <translation>Les flèches vont de l’une à l’autre&#xa0;; Espace la choisit.</translation>
    </message>
    <message>
        <source>My own area</source>
        <translation>Ma zone</translation>
    </message>
    <message>
        <source>Drag across the screen, or move the area&apos;s lower right corner with the arrow keys and, with Shift, its upper left one. Return keeps the area, Esc leaves all as it was.</source>
        <translation>Glissez sur l’écran, ou déplacez le coin inférieur droit de la zone avec les flèches et, avec Maj, son coin supérieur gauche. Entrée garde la zone, Échap laisse tout comme avant.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Width × height at left, top, in points on the screen.</source>
        <translation>Largeur × hauteur à gauche, en haut, en points de l’écran.</translation>
    </message>
    <message>
        <source>Draw my own area</source>
        <translation>Dessiner ma zone</translation>
    </message>
    <message>
        <source>Covers the screen. Drag across it, or move the area&apos;s lower right corner with the arrow keys and, with Shift, its upper left one. Return keeps the area, Esc leaves all as it was.</source>
        <translation>Couvre l’écran. Glissez dessus, ou déplacez le coin inférieur droit de la zone avec les flèches et, avec Maj, son coin supérieur gauche. Entrée garde la zone, Échap laisse tout comme avant.</translation>
    </message>
    <message>
        <source>&amp;Draw…</source>
        <translation>&amp;Dessiner…</translation>
    </message>
    <message>
        <source>Scan the menu bar too</source>
        <translation>Balayer aussi la barre des menus</translation>
    </message>
    <message>
        <source>Turn this off if you never use the menu bar and want it skipped.</source>
        <translation>Désactivez-le si vous n’utilisez jamais la barre des menus.</translation>
    </message>
    <message>
        <source>Line scan ends keyboard mode</source>
        <translation>Le balayage de la ligne quitte le mode clavier</translation>
    </message>
    <message>
        <source>Starting the scan line then leaves the on-screen keyboard, so you need no extra step to get back to the screen.</source>
        <translation>Lancer la ligne quitte alors le clavier à l’écran&#xa0;: aucun pas de plus pour revenir à l’écran.</translation>
    </message>
    <message>
        <source>P&amp;resses</source>
        <translation>A&amp;ppuis</translation>
    </message>
    <message>
        <source>Presses</source>
        <translation>Appuis</translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation>Façon de balayer</translation>
    </message>
    <message>
        <source>How your switch controls the scan.</source>
        <translation>Comment votre contacteur commande le balayage.</translation>
    </message>
    <message>
        <source>Press to start, press to choose</source>
        <translation>Appuyer pour lancer, appuyer pour choisir</translation>
    </message>
    <message>
        <source>The scan moves by itself. Press once to start it and again at the thing you want.</source>
        <translation>Le balayage avance seul. Appuyez une fois pour le lancer, et de nouveau sur ce que vous voulez.</translation>
    </message>
    <message>
        <source>A press counts</source>
        <translation>Un appui compte</translation>
    </message>
    <message>
        <source>Choose “let go” if you can time that better.</source>
        <translation>Choisissez «&#xa0;Quand je relâche&#xa0;» si vous visez mieux ainsi.</translation>
    </message>
    <message>
        <source>Used by this way of scanning only. Choose “let go” if you can time that better.</source>
        <translation>Ne sert qu’à cette façon de balayer. Choisissez «&#xa0;Quand je relâche&#xa0;» si vous visez mieux ainsi.</translation>
    </message>
    <message>
        <source>When I press</source>
        <translation>Quand j’appuie</translation>
    </message>
    <message>
        <source>When I let go</source>
        <translation>Quand je relâche</translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation>Maintenir pour balayer, relâcher pour choisir</translation>
    </message>
    <message>
        <source>The scan moves while you hold your switch down and stops when you let go.</source>
        <translation>Le balayage avance tant que vous maintenez votre contacteur, et s’arrête quand vous le relâchez.</translation>
    </message>
    <message>
        <source>Wait after &amp;letting go</source>
        <translation>Attendre après le re&amp;lâchement</translation>
    </message>
    <message>
        <source>Press again within this time to go on. After it, Korvex chooses.</source>
        <translation>Appuyez de nouveau dans ce délai pour continuer. Ensuite, Korvex choisit.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A few seconds let you put right a hand that slipped off the switch.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Quelques secondes permettent de rattraper une main qui a glissé du contacteur.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation>Chaque appui avance d’un pas</translation>
    </message>
    <message>
        <source>The scan ends after this time without a press.</source>
        <translation>Le balayage finit après ce temps sans appui.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A long time lets you rest between steps; a short one clears the screen soon after you stop.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Un temps long laisse du repos entre les pas&#xa0;; un temps court libère l’écran peu après votre arrêt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Steadier presses</source>
        <translation>Des appuis plus sûrs</translation>
    </message>
    <message>
        <source>Shortest press that &amp;counts</source>
        <translation>Appui le plus co&amp;urt qui compte</translation>
    </message>
    <message>
        <source>Shorter ones, as from a tremor, are ignored. 0 counts all.</source>
        <translation>Les plus courts, d’un tremblement par exemple, sont ignorés. 0 les compte tous.</translation>
    </message>
    <message>
        <source>&lt;p&gt;A few tenths of a second filter out most tremor; more than a second makes every press deliberate.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Quelques dixièmes de seconde écartent la plupart des tremblements&#xa0;; plus d’une seconde rend chaque appui volontaire.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Ignore presses after a click for</source>
        <translation>Ign&amp;orer les appuis après un clic pendant</translation>
    </message>
    <message>
        <source>Stops an unwanted second press from counting. 0 ignores none.</source>
        <translation>Empêche un second appui involontaire de compter. 0 n’en ignore aucun.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Half a second stops most accidental double presses; longer leaves time for a spasm to pass.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Une demi-seconde arrête la plupart des doubles appuis&#xa0;; plus long laisse passer un spasme.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Your switch</source>
        <translation>Votre contacteur</translation>
    </message>
    <message>
        <source>Listen to hot keys</source>
        <translation>Écouter les raccourcis clavier</translation>
    </message>
    <message>
        <source>For a switch or switch box that types a key. Leave this or mouse clicks on, or nothing you press will start a scan.</source>
        <translation>Pour un contacteur ou un boîtier qui tape une touche. Laissez ceci ou les clics actifs, sinon aucun appui ne lance de balayage.</translation>
    </message>
    <message>
        <source>Listen to mouse clicks</source>
        <translation>Écouter les clics de souris</translation>
    </message>
    <message>
        <source>For a switch that is connected as a mouse button, or for the mouse itself.</source>
        <translation>Pour un contacteur branché comme bouton de souris, ou pour la souris elle-même.</translation>
    </message>
    <message>
        <source>Press the new hot key: one key, alone or with Ctrl, Alt, Shift or Super held down. Every key counts, Esc and Tab too.</source>
        <translation>Appuyez sur le nouveau raccourci&#xa0;: une touche, seule ou avec Ctrl, Alt, Maj ou Super. Chaque touche compte, Échap et Tab aussi.</translation>
    </message>
    <message>
        <source>Keeps the hot key as it is.</source>
        <translation>Garde le raccourci comme il est.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Takes the hot key away.</source>
        <translation>Enlève le raccourci.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Sca&amp;n</source>
        <translation>Balaye&amp;r</translation>
    </message>
    <message>
        <source>Starts a scan and stops it: the key that your switch types.</source>
        <translation>Lance un balayage et l’arrête&#xa0;: la touche que tape votre contacteur.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Click, then press the new keys.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Cliquez, puis appuyez sur les nouvelles touches.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Change: Scan</source>
        <translation>Changer&#xa0;: Balayer</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changer</translation>
    </message>
    <message>
        <source>Scan, s&amp;econd key</source>
        <translation>Balayer, &amp;deuxième touche</translation>
    </message>
    <message>
        <source>Does the same, for a second switch or a key in another place.</source>
        <translation>Fait de même, pour un second contacteur ou une touche placée ailleurs.</translation>
    </message>
    <message>
        <source>Scan, second key</source>
        <translation>Balayer, deuxième touche</translation>
    </message>
    <message>
        <source>Change: Scan, second key</source>
        <translation>Changer&#xa0;: Balayer, deuxième touche</translation>
    </message>
    <message>
        <source>C&amp;ancel the scan</source>
        <translation>A&amp;nnuler le balayage</translation>
    </message>
    <message>
        <source>Takes the line away without a click.</source>
        <translation>Enlève la ligne sans clic.</translation>
    </message>
    <message>
        <source>Cancel the scan</source>
        <translation>Annuler le balayage</translation>
    </message>
    <message>
        <source>Change: Cancel the scan</source>
        <translation>Changer&#xa0;: Annuler le balayage</translation>
    </message>
    <message>
        <source>&amp;Turn scanning on or off</source>
        <translation>Marche ou arrê&amp;t du balayage</translation>
    </message>
    <message>
        <source>Does what the switch at the top of this window does.</source>
        <translation>Fait ce que fait l’interrupteur en haut de cette fenêtre.</translation>
    </message>
    <message>
        <source>Turn scanning on or off</source>
        <translation>Marche ou arrêt du balayage</translation>
    </message>
    <message>
        <source>Change: Turn scanning on or off</source>
        <translation>Changer : Marche ou arrêt du balayage</translation>
    </message>
    <message>
        <source>Sho&amp;w these settings</source>
        <translation>&amp;Montrer ces réglages</translation>
    </message>
    <message>
        <source>Opens this window from wherever you are.</source>
        <translation>Ouvre cette fenêtre où que vous soyez.</translation>
    </message>
    <message>
        <source>Show these settings</source>
        <translation>Montrer ces réglages</translation>
    </message>
    <message>
        <source>Change: Show these settings</source>
        <translation>Changer&#xa0;: Montrer ces réglages</translation>
    </message>
    <message>
        <source>To hold while the key is pressed.</source>
        <translation>À maintenir pendant l’appui sur la touche.</translation>
    </message>
    <message>
        <source>command (Super)</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>control</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>option (Alt)</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Choose a key</source>
        <translation>Choisir une touche</translation>
    </message>
    <message>
        <source>The key that you choose becomes the hot key, with the boxes that are ticked.</source>
        <translation>La touche choisie devient le raccourci, avec les cases cochées.</translation>
    </message>
    <message>
        <source>L&amp;ook</source>
        <translation>Aspe&amp;ct</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>Click to see the other line.</source>
        <translation>Cliquez pour voir l’autre ligne.</translation>
    </message>
    <message>
        <source>With it are two sample buttons and the pointer. Shows the other line when pressed.</source>
        <translation>Avec elle, deux boutons d’exemple et le pointeur. Montre l’autre ligne quand on appuie.</translation>
    </message>
    <message>
        <source>Scan line and guide line</source>
        <translation>Ligne de balayage et ligne guide</translation>
    </message>
    <message>
        <source>&amp;Line colour</source>
        <translation>Couleur de la &amp;ligne</translation>
    </message>
    <message>
        <source>Choose a colour that stands out from your windows and desktop.</source>
        <translation>Choisissez une couleur qui se détache de vos fenêtres et du bureau.</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Couleur de la ligne</translation>
    </message>
    <message>
        <source>Strong colours</source>
        <translation>Couleurs fortes</translation>
    </message>
    <message>
        <source>Line &amp;thickness</source>
        <translation>&amp;Épaisseur de la ligne</translation>
    </message>
    <message>
        <source>thinner</source>
        <translation>plus mince</translation>
    </message>
    <message>
        <source>thicker</source>
        <translation>plus épais</translation>
    </message>
    <message>
        <source>A thick line is easier to see; a thin one hides less.</source>
        <translation>Une ligne épaisse se voit mieux&#xa0;; une ligne mince cache moins.</translation>
    </message>
    <message>
        <source>Scan line transparenc&amp;y</source>
        <translation>&amp;Transparence de la ligne de balayage</translation>
    </message>
    <message>
        <source>more solid</source>
        <translation>plus opaque</translation>
    </message>
    <message>
        <source>more transparent</source>
        <translation>plus transparent</translation>
    </message>
    <message>
        <source>0% is solid. A higher value lets you see what is beneath the line.</source>
        <translation>0 % est opaque. Une valeur plus haute laisse voir ce qui est sous la ligne.</translation>
    </message>
    <message>
        <source>&lt;p&gt;It stops short of 100 so that the scan line can never vanish.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La valeur reste sous 100, pour que la ligne de balayage ne disparaisse jamais.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Gui&amp;de line transparency</source>
        <translation>Transparence de la ligne g&amp;uide</translation>
    </message>
    <message>
        <source>The guide line goes with the scan line. 100% hides it.</source>
        <translation>La ligne guide accompagne la ligne de balayage. 100 % la cache.</translation>
    </message>
    <message>
        <source>&lt;p&gt;At 100 the guide line is invisible, for those whom a second line distracts.&lt;/p&gt;</source>
        <translation>&lt;p&gt;À 100, la ligne guide est invisible, pour les personnes qu’une seconde ligne distrait.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message>
        <source>Poi&amp;nter</source>
        <translation>P&amp;ointeur</translation>
    </message>
    <message>
        <source>What moves along the line.</source>
        <translation>Ce qui avance le long de la ligne.</translation>
    </message>
    <message>
        <source>Previous pointer</source>
        <translation>Pointeur précédent</translation>
    </message>
    <message>
        <source>Chooses the pointer before this one. Before the first comes the last.</source>
        <translation>Choisit le pointeur d’avant. Avant le premier vient le dernier.</translation>
    </message>
    <message>
        <source>Next pointer</source>
        <translation>Pointeur suivant</translation>
    </message>
    <message>
        <source>Chooses the pointer after this one. After the last comes the first.</source>
        <translation>Choisit le pointeur d’après. Après le dernier vient le premier.</translation>
    </message>
    <message>
        <source>All pointers</source>
        <translation>Tous les pointeurs</translation>
    </message>
    <message>
        <source>Choose a large one, or one whose colour you find quickly.</source>
        <translation>Choisissez-en un grand, ou d’une couleur que vous trouvez vite.</translation>
    </message>
    <message>
        <source>The shape of each button of the palette.</source>
        <translation>La forme de chaque bouton de la palette.</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carrés</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrondis</translation>
    </message>
    <message>
        <source>Show the icon</source>
        <translation>Montrer l’icône</translation>
    </message>
    <message>
        <source>Each button of the palette shows the picture of its action.</source>
        <translation>Chaque bouton de la palette montre l’image de son action.</translation>
    </message>
    <message>
        <source>Show the name</source>
        <translation>Montrer le nom</translation>
    </message>
    <message>
        <source>Each button of the palette shows the name of its action.</source>
        <translation>Chaque bouton de la palette montre le nom de son action.</translation>
    </message>
    <message>
        <source>smaller</source>
        <translation>plus petit</translation>
    </message>
    <message>
        <source>larger</source>
        <translation>plus grand</translation>
    </message>
    <message>
        <source>Palette buttons</source>
        <translation>Boutons de la palette</translation>
    </message>
    <message>
        <source>Larger buttons are easier to see and to hit. 20 to 100 points each way.</source>
        <translation>De plus grands boutons se voient et s’atteignent mieux. De 20 à 100 points par côté.</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>plus étroit</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>plus large</translation>
    </message>
    <message>
        <source>Wider buttons have room for longer names.</source>
        <translation>Des boutons plus larges ont de la place pour des noms plus longs.</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>plus bas</translation>
    </message>
    <message>
        <source>higher</source>
        <translation>plus haut</translation>
    </message>
    <message>
        <source>Higher buttons have room for a larger icon above the name.</source>
        <translation>Des boutons plus hauts ont de la place pour une plus grande icône au-dessus du nom.</translation>
    </message>
    <message>
        <source>Between the buttons and the edge of the palette.</source>
        <translation>Entre les boutons et le bord de la palette.</translation>
    </message>
    <message>
        <source>More space makes it harder to hit the wrong button.</source>
        <translation>Avec plus d’espace, on atteint moins souvent le mauvais bouton.</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>Pal&amp;ette</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>The nine places of the palette. The arrow keys move between them, Space chooses one.</source>
        <translation>Les neuf places de la palette. Les flèches passent de l’une à l’autre, Espace en choisit une.</translation>
    </message>
    <message>
        <source>Add a button</source>
        <translation>Ajouter un bouton</translation>
    </message>
    <message>
        <source>Puts a new button before the chosen one or, with none chosen, after the last.</source>
        <translation>Met un nouveau bouton avant celui qui est choisi ou, si aucun ne l’est, après le dernier.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Puts a new button before the chosen one or, with none chosen, after the last.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Met un nouveau bouton avant celui qui est choisi ou, si aucun ne l’est, après le dernier.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Change the chosen button</source>
        <translation>Changer le bouton choisi</translation>
    </message>
    <message>
        <source>Gives the chosen button another action.</source>
        <translation>Donne une autre action au bouton choisi.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the chosen button another action.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Donne une autre action au bouton choisi.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cha&amp;nge</source>
        <translation>Cha&amp;nger</translation>
    </message>
    <message>
        <source>Remove the chosen button</source>
        <translation>Enlever le bouton choisi</translation>
    </message>
    <message>
        <source>Takes the chosen button away; those after it move up.</source>
        <translation>Enlève le bouton choisi&#xa0;; ceux qui suivent avancent.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Takes the chosen button away; those after it move up.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Enlève le bouton choisi&#xa0;; ceux qui suivent avancent.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Enle&amp;ver</translation>
    </message>
    <message>
        <source>Swap the chosen button</source>
        <translation>Échanger le bouton choisi</translation>
    </message>
    <message>
        <source>Then choose the button that it is to change places with.</source>
        <translation>Choisissez ensuite le bouton avec lequel il change de place.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Then choose the button that it is to change places with.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Choisissez ensuite le bouton avec lequel il change de place.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>S&amp;wap…</source>
        <translation>Éc&amp;hanger…</translation>
    </message>
    <message>
        <source>Reset all buttons</source>
        <translation>Réinitialiser tous les boutons</translation>
    </message>
    <message>
        <source>R&amp;eset all</source>
        <translation>Tout &amp;réinitialiser</translation>
    </message>
    <message>
        <source>A new button goes before the chosen one. With none chosen it goes after the last.</source>
        <translation>Un nouveau bouton se place avant celui qui est choisi. Si aucun ne l’est, il va après le dernier.</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>A sound for each click</source>
        <translation>Un son à chaque clic</translation>
    </message>
    <message>
        <source>Tells you that Korvex has clicked, even when you look elsewhere.</source>
        <translation>Vous dit que Korvex a cliqué, même quand vous regardez ailleurs.</translation>
    </message>
    <message>
        <source>Prompts while dragging</source>
        <translation>Annonces pendant le glissement</translation>
    </message>
    <message>
        <source>Tells you when something was picked up and let go.</source>
        <translation>Vous dit quand quelque chose a été pris et lâché.</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>quieter</source>
        <translation>moins fort</translation>
    </message>
    <message>
        <source>louder</source>
        <translation>plus fort</translation>
    </message>
    <message>
        <source>How loud these sounds are, from 0, silent, to 100.</source>
        <translation>La force de ces sons, de 0, muet, à 100.</translation>
    </message>
    <message>
        <source>&lt;p&gt;At 50 there is room to go louder in a noisy place and quieter at night.&lt;/p&gt;</source>
        <translation>&lt;p&gt;À 50, il reste de la marge&#xa0;: plus fort dans un lieu bruyant, moins fort la nuit.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Starting Korvex</source>
        <translation>Lancement de Korvex</translation>
    </message>
    <message>
        <source>Start Korvex when you log in</source>
        <translation>Lancer Korvex à l’ouverture de session</translation>
    </message>
    <message>
        <source>Your switch works from the first moment, and nobody has to start Korvex for you.</source>
        <translation>Votre contacteur sert dès le premier instant, et personne ne doit lancer Korvex pour vous.</translation>
    </message>
    <message>
        <source>Turn scanning on when Korvex starts</source>
        <translation>Mettre le balayage en marche au lancement de Korvex</translation>
    </message>
    <message>
        <source>Otherwise Korvex waits until you turn scanning on, here or with its key.</source>
        <translation>Sinon, Korvex attend que vous mettiez le balayage en marche, ici ou avec sa touche.</translation>
    </message>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>The page of the first start</source>
        <translation>La page du premier démarrage</translation>
    </message>
    <message>
        <source>Shows your switch answer, how you press, a speed, and where help is.</source>
        <translation>Montre la réponse de votre contacteur, votre façon d’appuyer, une vitesse et où trouver de l’aide.</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Uses a profile, which changes all settings at once, and says which one is in use.</source>
        <translation>Utilise un profil, qui change tous les réglages d’un coup, et dit lequel est utilisé.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Uses a profile, which changes all settings at once.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Utilise un profil, qui change tous les réglages d’un coup.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Stop witho&amp;ut a press for</source>
        <translation>S’arrêter &amp;sans appui au bout de</translation>
    </message>
    <message>
        <source>Your profiles</source>
        <translation>Vos profils</translation>
    </message>
    <message>
        <source>The arrow keys go from one to the next; Space chooses it and says what it would change.</source>
        <translation>Les flèches vont de l’un à l’autre&#xa0;; Espace choisit le profil et dit ce qu’il changerait.</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>Utiliser le profil choisi</translation>
    </message>
    <message>
        <source>Changes all these settings at once. Undo takes it back.</source>
        <translation>Change tous ces réglages d’un coup. «&#xa0;Annuler&#xa0;» revient en arrière.</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>The chosen profile gets the settings as they are now.</source>
        <translation>Le profil choisi reçoit les réglages tels qu’ils sont maintenant.</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>Supprimer le profil choisi</translation>
    </message>
    <message>
        <source>Deletes the chosen profile. The settings stay as they are.</source>
        <translation>Supprime le profil choisi. Les réglages restent tels qu’ils sont.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Save the settings as a profile</source>
        <translation>Enregistrer les réglages comme profil</translation>
    </message>
    <message>
        <source>A name, typed or from below</source>
        <translation>Un nom, tapé ou pris ci-dessous</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Nom du profil</translation>
    </message>
    <message>
        <source>Type a name, or press one of the buttons below. Return saves.</source>
        <translation>Tapez un nom ou pressez un des boutons ci-dessous. Entrée enregistre.</translation>
    </message>
    <message>
        <source>Puts this name into the field.</source>
        <translation>Met ce nom dans le champ.</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Matin</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Après-midi</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Soir</translation>
    </message>
    <message>
        <source>Rested</source>
        <translation>En forme</translation>
    </message>
    <message>
        <source>Tired</source>
        <translation>Fatigue</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Dehors</translation>
    </message>
    <message>
        <source>Save the settings under the name above</source>
        <translation>Enregistrer les réglages sous le nom ci-dessus</translation>
    </message>
    <message>
        <source>Saves the settings as they are now under the name above.</source>
        <translation>Enregistre les réglages tels qu’ils sont sous le nom ci-dessus.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Gives the chosen profile the name above.</source>
        <translation>Donne au profil choisi le nom ci-dessus.</translation>
    </message>
    <message>
        <source>Rename the chosen one</source>
        <translation>Renommer le profil choisi</translation>
    </message>
    <message>
        <source>Shows what the file would change, before anything is changed.</source>
        <translation>Montre ce que le fichier changerait, avant tout changement.</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importer des réglages</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>As a backup, or for another computer.</source>
        <translation>Comme sauvegarde, ou pour un autre ordinateur.</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>How the palette looks</source>
        <translation>Aspect de la palette</translation>
    </message>
    <message>
        <source>Scans only that part from now on: the whole screen, a half, a third, a quarter or, where the desktop tells it, the window that you used last.</source>
        <translation>Ne balaie plus que cette partie&#xa0;: tout l’écran, une moitié, un tiers, un quart ou, si le bureau le dit, la dernière fenêtre utilisée.</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>further left</source>
        <translation>plus à gauche</translation>
    </message>
    <message>
        <source>further right</source>
        <translation>plus à droite</translation>
    </message>
    <message>
        <source>Left edge of my own area</source>
        <translation>Bord gauche de ma zone</translation>
    </message>
    <message>
        <source>From the main screen’s left edge.</source>
        <translation>À partir du bord gauche de l’écran principal.</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>Bord haut</translation>
    </message>
    <message>
        <source>further up</source>
        <translation>plus haut</translation>
    </message>
    <message>
        <source>further down</source>
        <translation>plus bas</translation>
    </message>
    <message>
        <source>Top edge of my own area</source>
        <translation>Bord haut de ma zone</translation>
    </message>
    <message>
        <source>From the main screen’s top edge.</source>
        <translation>À partir du bord haut de l’écran principal.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Width of my own area</source>
        <translation>Largeur de ma zone</translation>
    </message>
    <message>
        <source>A narrow area is scanned sooner.</source>
        <translation>Une zone étroite est balayée plus vite.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Height of my own area</source>
        <translation>Hauteur de ma zone</translation>
    </message>
    <message>
        <source>A low area is scanned sooner.</source>
        <translation>Une zone basse est balayée plus vite.</translation>
    </message>
    <message>
        <source>Show it…</source>
        <translation>Afficher…</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>This section</source>
        <translation>Cette section</translation>
    </message>
    <message>
        <source>All sections</source>
        <translation>Toutes les sections</translation>
    </message>
    <message>
        <source>Settings as a file</source>
        <translation>Réglages dans un fichier</translation>
    </message>
    <message>
        <source>Speed, clicks, area</source>
        <translation>Vitesse, clics, zone</translation>
    </message>
    <message>
        <source>Switch, keys</source>
        <translation>Contacteur, touches</translation>
    </message>
    <message>
        <source>Lines, pointer</source>
        <translation>Lignes, pointeur</translation>
    </message>
    <message>
        <source>Twelve colours that are easy to tell apart.</source>
        <translation>Douze couleurs faciles à distinguer.</translation>
    </message>
    <message>
        <source>Buttons, size</source>
        <translation>Boutons, taille</translation>
    </message>
    <message>
        <source>Compare the chosen profile</source>
        <translation>Comparer le profil choisi</translation>
    </message>
    <message>
        <source>Says how the chosen profile differs from another one, or from the settings as they are.</source>
        <translation>Dit en quoi le profil choisi diffère d’un autre, ou des réglages tels qu’ils sont.</translation>
    </message>
    <message>
        <source>Compare with…</source>
        <translation>Comparer avec…</translation>
    </message>
    <message>
        <source>Sound, login, profiles</source>
        <translation>Son, démarrage, profils</translation>
    </message>
    <message>
        <source>Undoes the last change of this visit. Ctrl+Z does the same.</source>
        <translation>Annule le dernier changement de cette visite. Ctrl+Z fait de même.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Undoes the last change of this visit. Ctrl+Z does the same.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Annule le dernier changement de cette visite. Ctrl+Z fait de même.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Line crosses the screen in</source>
        <translation>La ligne traverse l’écran en</translation>
    </message>
    <message>
        <source>Pointer crosses the screen in</source>
        <translation>Le pointeur traverse l’écran en</translation>
    </message>
    <message>
        <source>Repeat an action every</source>
        <translation>Répéter une action toutes les</translation>
    </message>
    <message>
        <source>Resets every setting marked with a bar. You can undo that.</source>
        <translation>Réinitialise chaque réglage marqué d’une barre. Vous pouvez l’annuler.</translation>
    </message>
    <message>
        <source>Resets this section’s settings to their defaults.</source>
        <translation>Réinitialise les réglages de cette section.</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Resets the hot key to its default.</source>
        <translation>Réinitialise le raccourci.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>They work everywhere. To change one, click it, or open the menu beside it and choose “Press new keys”. The next key that you press becomes the hot key. Without a keyboard, choose “Choose keys…”.</source>
        <translation>Ils agissent partout. Pour en changer un, cliquez dessus, ou ouvrez le menu à côté et choisissez « Appuyer sur de nouvelles touches ». La prochaine touche pressée devient le raccourci. Sans clavier, choisissez « Choisir des touches… ».</translation>
    </message>
    <message>
        <source>Gives the palette its five original buttons again.</source>
        <translation>Rend à la palette ses cinq boutons d’origine.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gives the palette its five original buttons again.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Rend à la palette ses cinq boutons d’origine.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Corners of the buttons</source>
        <translation>Coins des boutons</translation>
    </message>
    <message>
        <source>Size of the buttons</source>
        <translation>Taille des boutons</translation>
    </message>
    <message>
        <source>Width of the buttons</source>
        <translation>Largeur des boutons</translation>
    </message>
    <message>
        <source>Height of the buttons</source>
        <translation>Hauteur des boutons</translation>
    </message>
    <message>
        <source>Space around the edge</source>
        <translation>Espace au bord</translation>
    </message>
    <message>
        <source>Space between the buttons</source>
        <translation>Espace entre les boutons</translation>
    </message>
    <message>
        <source>Update this profile</source>
        <translation>Mettre ce profil à jour</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Exporter les réglages</translation>
    </message>
    <message>
        <source>Resets every setting marked with a bar, but not how Korvex starts.</source>
        <translation>Réinitialise chaque réglage marqué d’une barre, sauf le démarrage de Korvex.</translation>
    </message>
    <message>
        <source>Resets every setting, but not how Korvex starts.</source>
        <translation>Réinitialise chaque réglage, sauf le démarrage de Korvex.</translation>
    </message>
    <message>
        <source>Resets the settings of all sections to their defaults.</source>
        <translation>Réinitialise les réglages de toutes les sections.</translation>
    </message>
    <message>
        <source>Opens the help’s page on this section in your web browser. F1 does the same, at the row that has the keyboard.</source>
        <translation>Ouvre dans votre navigateur la page de l’aide sur cette section. F1 fait de même, à la ligne qui a le clavier.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Opens the help’s page on this section in your web browser. F1 does the same, at the row that has the keyboard.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ouvre dans votre navigateur la page de l’aide sur cette section. F1 fait de même, à la ligne qui a le clavier.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Time to get ready, before the line and again before the pointer. 0 starts at once.</source>
        <translation>Le temps de se préparer, avant la ligne et encore avant le pointeur. 0 part tout de suite.</translation>
    </message>
    <message>
        <source>Nothing moves until you press. Hold your switch for a second, or press the second one, to choose.</source>
        <translation>Rien ne bouge sans appui. Pour choisir, tenez votre contacteur une seconde, ou appuyez sur le second.</translation>
    </message>
    <message>
        <source>Click the nearest button</source>
        <translation>Cliquer sur le bouton le plus proche</translation>
    </message>
    <message>
        <source>A click that comes near to one button hits its middle. A ring shows which.</source>
        <translation>Un clic près d’un seul bouton touche son milieu. Un anneau montre lequel.</translation>
    </message>
</context>
<context>
    <name>Pointer</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
</context>
<context>
    <name>Pointers</name>
    <message>
        <source>default</source>
        <translation>standard</translation>
    </message>
    <message>
        <source>Arrow small</source>
        <translation>Flèche, petite</translation>
    </message>
    <message>
        <source>Arrow large</source>
        <translation>Flèche, grande</translation>
    </message>
    <message>
        <source>Arrow large white</source>
        <translation>Flèche, grande, blanche</translation>
    </message>
    <message>
        <source>Arrow huge yellow</source>
        <translation>Flèche, énorme, jaune</translation>
    </message>
    <message>
        <source>Arrow large see-through</source>
        <translation>Flèche, grande, transparente</translation>
    </message>
    <message>
        <source>Crosshair small</source>
        <translation>Croix, petite</translation>
    </message>
    <message>
        <source>Crosshair large</source>
        <translation>Croix, grande</translation>
    </message>
    <message>
        <source>Crosshair large white</source>
        <translation>Croix, grande, blanche</translation>
    </message>
    <message>
        <source>Crosshair huge see-through</source>
        <translation>Croix, énorme, transparente</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Anneau</translation>
    </message>
    <message>
        <source>Target huge</source>
        <translation>Cible, énorme</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Scan Line</source>
        <translation>Ligne de balayage</translation>
    </message>
    <message>
        <source>Guide Line</source>
        <translation>Ligne guide</translation>
    </message>
    <message>
        <source>Preview of the scan line</source>
        <translation>Aperçu de la ligne de balayage</translation>
    </message>
    <message>
        <source>Preview of the guide line</source>
        <translation>Aperçu de la ligne guide</translation>
    </message>
    <message>
        <source>%1 thick, %2 transparent, red %3, green %4, blue %5, each of 255.</source>
        <comment>as in 2 points thick, 50% transparent</comment>
        <translation>%1 d’épaisseur, %2 de transparence, rouge %3, vert %4, bleu %5, chacun sur 255.</translation>
    </message>
</context>
<context>
    <name>Profiles</name>
    <message>
        <source>Left out: %1: %2.</source>
        <translation>Laissé de côté&#xa0;: %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” can’t be used: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Nothing in “%1” differs from the settings.</source>
        <translation>Rien dans «&#xa0;%1&#xa0;» ne diffère des réglages.</translation>
    </message>
    <message>
        <source>Use them</source>
        <translation>Les utiliser</translation>
    </message>
    <message>
        <source>“%1” couldn’t be saved: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The settings are now in %1.</source>
        <translation>Les réglages sont maintenant dans %1.</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modifié</translation>
    </message>
    <message>
        <source>Profile: %1, changed</source>
        <translation>Profil&#xa0;: %1, modifié</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profil&#xa0;: %1</translation>
    </message>
    <message>
        <source>Use “%1”</source>
        <translation>Utiliser «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Back to “%1”</source>
        <translation>Revenir à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” is in use</source>
        <translation>«&#xa0;%1&#xa0;» est utilisé</translation>
    </message>
    <message>
        <source>Save the changes in “%1”</source>
        <translation>Enregistrer les changements dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Save a profile…</source>
        <translation>Enregistrer un profil…</translation>
    </message>
    <message>
        <source>Save, rename, delete…</source>
        <translation>Enregistrer, renommer, supprimer…</translation>
    </message>
    <message>
        <source>%1, in use, changed</source>
        <translation>%1, utilisé, modifié</translation>
    </message>
    <message>
        <source>%1, in use</source>
        <translation>%1, utilisé</translation>
    </message>
    <message>
        <source>The settings are those of “%1”.</source>
        <translation>Les réglages sont ceux de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” would change:</source>
        <translation>«&#xa0;%1&#xa0;» changerait&#xa0;:</translation>
    </message>
    <message>
        <source>“%1” is in use.</source>
        <translation>«&#xa0;%1&#xa0;» est utilisé.</translation>
    </message>
    <message>
        <source>The settings are saved as “%1”.</source>
        <translation>Les réglages sont enregistrés sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” is as it was.</source>
        <translation>«&#xa0;%1&#xa0;» est comme avant.</translation>
    </message>
    <message>
        <source>“%1” couldn’t be renamed: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être renommé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” is now called “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» s’appelle maintenant «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” couldn’t be deleted: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être supprimé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” is deleted. The settings stay as they are.</source>
        <translation>«&#xa0;%1&#xa0;» est supprimé. Les réglages restent tels qu’ils sont.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1 de plus.</translation>
    </message>
    <message>
        <source>First type a name, or press one of the ready ones.</source>
        <translation>Tapez d’abord un nom, ou pressez un de ceux tout prêts.</translation>
    </message>
    <message>
        <source>Which profile is in use can’t be kept: %1.</source>
        <translation>Impossible de retenir quel profil est utilisé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The settings as they are</source>
        <translation>Les réglages tels qu’ils sont</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same settings.</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» ont les mêmes réglages.</translation>
    </message>
    <message>
        <source>“%1” in place of “%2” would change:</source>
        <translation>«&#xa0;%1&#xa0;» à la place de «&#xa0;%2&#xa0;» changerait&#xa0;:</translation>
    </message>
    <message>
        <source>Your profiles can’t be read: %1.</source>
        <translation>Vos profils ne peuvent pas être lus&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Garder les miens</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importer des réglages</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Exporter les réglages</translation>
    </message>
    <message>
        <source>There is no profile yet. Save the settings as they are now, and come back to them with the Profiles menu.</source>
        <translation>Il n’y a pas encore de profil. Enregistrez les réglages tels qu’ils sont, et revenez-y par le menu « Profils ».</translation>
    </message>
    <message>
        <source>“%1” is in use. It has changed:</source>
        <translation>« %1 » est utilisé. Il a changé :</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout montrer</translation>
    </message>
    <message>
        <source>Undo this</source>
        <translation>Annuler ceci</translation>
    </message>
</context>
<context>
    <name>PutBackButton</name>
    <message>
        <source>Reset to its default</source>
        <translation>Réinitialisé</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>Your last visit here ended before it could save. Its changes are here again.</source>
        <translation>Votre dernière visite ici a pris fin avant l’enregistrement. Ses changements sont de retour.</translation>
    </message>
</context>
<context>
    <name>ScanArea</name>
    <message>
        <source>Your current custom scan rectangle (if any) is shown in light blue.<byte value="xd"/>Click and drag across the desktop select a new area then<byte value="xd"/>press RETURN to accept it or ESC to cancel.</source>
        <translation>Votre rectangle de balayage actuel (s’il y en a un) est montré en bleu clair.</translation>
    </message>
    <message>
        <source>Another program holds the keyboard. Close its menus, then try again.</source>
        <translation>Un autre programme tient le clavier. Fermez ses menus, puis réessayez.</translation>
    </message>
    <message>
        <source>This desktop lets no window cover the screens. Choose a part above and change its numbers; to draw an area, log in to a session with X11 (Xorg).</source>
        <translation>Ce bureau ne laisse aucune fenêtre couvrir les écrans. Choisissez une partie ci-dessus et changez ses nombres&#xa0;; pour dessiner une zone, ouvrez une session X11 (Xorg).</translation>
    </message>
    <message>
        <source>Whole screen</source>
        <translation>Écran entier</translation>
    </message>
    <message>
        <source>Left half</source>
        <translation>Moitié gauche</translation>
    </message>
    <message>
        <source>Right half</source>
        <translation>Moitié droite</translation>
    </message>
    <message>
        <source>Top half</source>
        <translation>Moitié haute</translation>
    </message>
    <message>
        <source>Bottom half</source>
        <translation>Moitié basse</translation>
    </message>
    <message>
        <source>Left third</source>
        <translation>Tiers gauche</translation>
    </message>
    <message>
        <source>Middle third</source>
        <translation>Tiers du milieu</translation>
    </message>
    <message>
        <source>Right third</source>
        <translation>Tiers droit</translation>
    </message>
    <message>
        <source>Top left quarter</source>
        <translation>Quart en haut à gauche</translation>
    </message>
    <message>
        <source>Top right quarter</source>
        <translation>Quart en haut à droite</translation>
    </message>
    <message>
        <source>Bottom left quarter</source>
        <translation>Quart en bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right quarter</source>
        <translation>Quart en bas à droite</translation>
    </message>
    <message>
        <source>%1, display %2</source>
        <translation>%1, écran %2</translation>
    </message>
    <message>
        <source>The window used last</source>
        <translation>La dernière fenêtre utilisée</translation>
    </message>
    <message>
        <source>No area</source>
        <translation>Aucune zone</translation>
    </message>
    <message>
        <source>Left %1, top %2, %3 by %4</source>
        <translation>Gauche %1, haut %2, %3 sur %4</translation>
    </message>
    <message>
        <source>Draw my own area</source>
        <translation>Dessiner ma zone</translation>
    </message>
    <message>
        <source>Arrow keys move a corner, with Shift the other one. Return keeps the area, Escape leaves it as it was.</source>
        <translation>Les flèches déplacent un coin, avec Maj l’autre. Entrée garde la zone, Échap la laisse comme elle était.</translation>
    </message>
    <message>
        <source>The height is missing.</source>
        <translation>La hauteur manque.</translation>
    </message>
    <message>
        <source>The width is missing.</source>
        <translation>La largeur manque.</translation>
    </message>
    <message>
        <source>What is scanned stays as it was.</source>
        <translation>Ce qui est balayé reste comme c’était.</translation>
    </message>
    <message>
        <source>Only your own area is scanned now: %1.</source>
        <translation>Seule votre zone est balayée maintenant&#xa0;: %1.</translation>
    </message>
    <message>
        <source>You have no area of your own any more. The whole screen is scanned.</source>
        <translation>Vous n’avez plus de zone à vous. Tout l’écran est balayé.</translation>
    </message>
</context>
<context>
    <name>SectionFrame</name>
    <message>
        <source>Section: %1</source>
        <translation>Section&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>none</source>
        <comment>an area</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>%g × %g at %g, %g</source>
        <comment>width, height, x, y</comment>
        <translation>%g × %g à %g&#xa0;; %g</translation>
    </message>
    <message>
        <source>A sound for each click</source>
        <translation>Un son à chaque clic</translation>
    </message>
    <message>
        <source>Prompts while dragging</source>
        <translation>Annonces pendant le glissement</translation>
    </message>
    <message>
        <source>Priority over other programs</source>
        <translation>Priorité sur les autres programmes</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Scan the menu bar too</source>
        <translation>Balayer aussi la barre des menus</translation>
    </message>
    <message>
        <source>Shortest press that counts</source>
        <translation>Appui le plus court qui compte</translation>
    </message>
    <message>
        <source>Ignore presses after a click for</source>
        <translation>Ignorer les appuis après un clic pendant</translation>
    </message>
    <message>
        <source>Wait before the scan starts</source>
        <translation>Attendre avant le départ du balayage</translation>
    </message>
    <message>
        <source>Wait after letting go</source>
        <translation>Attendre après le relâchement</translation>
    </message>
    <message>
        <source>Stop without a press for</source>
        <translation>S’arrêter sans appui au bout de</translation>
    </message>
    <message>
        <source>Listen to hot keys</source>
        <translation>Écouter les raccourcis clavier</translation>
    </message>
    <message>
        <source>Listen to mouse clicks</source>
        <translation>Écouter les clics de souris</translation>
    </message>
    <message>
        <source>A press counts</source>
        <translation>Un appui compte</translation>
    </message>
    <message>
        <source>Second mouse button as a second switch</source>
        <translation>Second bouton de souris comme second contacteur</translation>
    </message>
    <message>
        <source>My own area</source>
        <translation>Ma zone</translation>
    </message>
    <message>
        <source>Line scan ends keyboard mode</source>
        <translation>Le balayage de la ligne quitte le mode clavier</translation>
    </message>
    <message>
        <source>Speed in menus</source>
        <translation>Vitesse dans les menus</translation>
    </message>
    <message>
        <source>Start slowly, then speed up</source>
        <translation>Commencer lentement, puis accélérer</translation>
    </message>
    <message>
        <source>Length of a click</source>
        <translation>Durée d’un clic</translation>
    </message>
    <message>
        <source>Pause between clicks</source>
        <translation>Pause entre les clics</translation>
    </message>
    <message>
        <source>Line colour</source>
        <translation>Couleur de la ligne</translation>
    </message>
    <message>
        <source>Line thickness</source>
        <translation>Épaisseur de la ligne</translation>
    </message>
    <message>
        <source>Scan line transparency</source>
        <translation>Transparence de la ligne de balayage</translation>
    </message>
    <message>
        <source>Guide line transparency</source>
        <translation>Transparence de la ligne guide</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Palette buttons</source>
        <translation>Boutons de la palette</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icône</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>icon and name</source>
        <translation>icône et nom</translation>
    </message>
    <message>
        <source>on</source>
        <translation>marche</translation>
    </message>
    <message>
        <source>off</source>
        <translation>arrêt</translation>
    </message>
    <message>
        <source>%d × %d points</source>
        <translation>%d × %d points</translation>
    </message>
    <message>
        <source>Start Korvex when you log in</source>
        <translation>Lancer Korvex à l’ouverture de session</translation>
    </message>
    <message>
        <source>Turn scanning on when Korvex starts</source>
        <translation>Mettre le balayage en marche au lancement de Korvex</translation>
    </message>
    <message>
        <source>none</source>
        <comment>keys</comment>
        <translation>aucun</translation>
    </message>
    <message>
        <source>none</source>
        <comment>buttons</comment>
        <translation>aucun</translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>what is chosen</comment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Palette button %1</source>
        <comment>its number</comment>
        <translation>Bouton %1 de la palette</translation>
    </message>
    <message>
        <source>Scanning with Korvex</source>
        <translation>Balayage avec Korvex</translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation>Façon de balayer</translation>
    </message>
    <message>
        <source>What is scanned</source>
        <translation>Ce qui est balayé</translation>
    </message>
    <message>
        <source>Line crosses the screen in</source>
        <translation>La ligne traverse l’écran en</translation>
    </message>
    <message>
        <source>Pointer crosses the screen in</source>
        <translation>Le pointeur traverse l’écran en</translation>
    </message>
    <message>
        <source>Repeat an action every</source>
        <translation>Répéter une action toutes les</translation>
    </message>
    <message>
        <source>Space around the edge</source>
        <translation>Espace au bord</translation>
    </message>
    <message>
        <source>Space between the buttons</source>
        <translation>Espace entre les boutons</translation>
    </message>
    <message>
        <source>Size of the buttons</source>
        <translation>Taille des boutons</translation>
    </message>
    <message>
        <source>Corners of the buttons</source>
        <translation>Coins des boutons</translation>
    </message>
    <message>
        <source>Shown on the buttons</source>
        <translation>Montré sur les boutons</translation>
    </message>
    <message>
        <source>Show the icon</source>
        <translation>Montrer l’icône</translation>
    </message>
    <message>
        <source>Show the name</source>
        <translation>Montrer le nom</translation>
    </message>
    <message>
        <source>Click the nearest button</source>
        <translation>Cliquer sur le bouton le plus proche</translation>
    </message>
</context>
<context>
    <name>Strip</name>
    <message>
        <source>Hide this</source>
        <translation>Masquer ceci</translation>
    </message>
</context>
<context>
    <name>Switch</name>
    <message>
        <source>Scanning is off. %1 switches it on again.</source>
        <translation>Le balayage est à l’arrêt. %1 le remet en marche.</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Mettre en marche</translation>
    </message>
    <message>
        <source>Ready for your switch</source>
        <translation>Prêt pour votre contacteur</translation>
    </message>
    <message>
        <source>Korvex is starting…</source>
        <translation>Korvex démarre…</translation>
    </message>
    <message>
        <source>Korvex isn’t running</source>
        <translation>Korvex n’est pas en marche</translation>
    </message>
    <message>
        <source>Nothing scans: no agent is installed</source>
        <translation>Rien ne balaie&#xa0;: aucun agent n’est installé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>No press is heard</source>
        <translation>Aucun appui n’est entendu</translation>
    </message>
    <message>
        <source>Scanning is off, and only this window switches it on again.</source>
        <translation>Le balayage est arrêté, et seule cette fenêtre le remet en marche.</translation>
    </message>
    <message>
        <source>Scanning is off. Hold your switch for four seconds to switch it on again.</source>
        <translation>Le balayage est arrêté. Tenez votre contacteur quatre secondes pour le remettre en marche.</translation>
    </message>
    <message>
        <source>Scanning is off. Hold your switch for four seconds to switch it on again, or press %1.</source>
        <translation>Le balayage est arrêté. Tenez votre contacteur quatre secondes pour le remettre en marche, ou appuyez sur %1.</translation>
    </message>
    <message>
        <source>No agent is installed, so nothing scans. You can make all settings.</source>
        <translation>Aucun agent n’est installé, donc rien ne balaie. Tous les réglages peuvent être faits.</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Que faire</translation>
    </message>
    <message>
        <source>Korvex has ended by itself, so nothing is scanned now.</source>
        <translation>Korvex s’est arrêté de lui-même, donc rien n’est balayé maintenant.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Neither a key nor a mouse click starts a scan now. Keep this? It goes back in 30 seconds.</source>
        <translation>Ni une touche ni un clic ne lance plus de balayage. Garder cela&#xa0;? Tout revient dans 30 secondes.</translation>
    </message>
    <message>
        <source>There is no scan key now, and mouse clicks don’t start a scan. Keep this? It goes back in 30 seconds.</source>
        <translation>Il n’y a plus de touche de balayage, et les clics n’en lancent pas. Garder cela&#xa0;? Tout revient dans 30 secondes.</translation>
    </message>
    <message>
        <source>Only a tiny area is scanned now. Keep this? It goes back in 30 seconds.</source>
        <translation>Seule une toute petite zone est balayée maintenant. Garder cela&#xa0;? Tout revient dans 30 secondes.</translation>
    </message>
    <message>
        <source>Keep this</source>
        <translation>Garder cela</translation>
    </message>
    <message>
        <source>Put it back</source>
        <translation>Remettre</translation>
    </message>
</context>
<context>
    <name>Troubles</name>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 est endommagé</translation>
    </message>
    <message>
        <source>no permission for %1</source>
        <translation>pas d’autorisation pour %1</translation>
    </message>
    <message>
        <source>%1 can only be read</source>
        <translation>%1 ne peut qu’être lu</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>un autre programme utilise le fichier</translation>
    </message>
    <message>
        <source>%1 is something else than expected</source>
        <translation>%1 est autre chose que prévu</translation>
    </message>
    <message>
        <source>%1 would become too large</source>
        <translation>%1 deviendrait trop grand</translation>
    </message>
    <message>
        <source>Your settings file was damaged and is kept as %1. The usual settings are shown instead.</source>
        <translation>Votre fichier de réglages était endommagé et est gardé sous %1. Les réglages habituels sont montrés à sa place.</translation>
    </message>
    <message>
        <source>Your settings file %1 is damaged. The usual settings are shown instead; the file will be kept beside the new one.</source>
        <translation>Votre fichier de réglages %1 est endommagé. Les réglages habituels sont montrés à sa place&#xa0;; le fichier sera gardé à côté du nouveau.</translation>
    </message>
    <message>
        <source>Your settings can’t be read: %1. The usual settings are shown instead.</source>
        <translation>Vos réglages ne peuvent pas être lus&#xa0;: %1. Les réglages habituels sont montrés à leur place.</translation>
    </message>
    <message>
        <source>What you change here can’t be saved: %1.</source>
        <translation>Ce que vous changez ici ne peut pas être enregistré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Save a copy of the settings</source>
        <translation>Enregistrer une copie des réglages</translation>
    </message>
    <message>
        <source>Your settings aren’t saved: %1.</source>
        <translation>Vos réglages ne sont pas enregistrés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A copy of your settings is now in %1.</source>
        <translation>Une copie de vos réglages est maintenant dans %1.</translation>
    </message>
    <message>
        <source>The copy couldn’t be saved: %1.</source>
        <translation>La copie n’a pas pu être enregistrée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 didn’t start, so nothing is scanned now.</source>
        <translation>%1 n’a pas démarré&#xa0;; rien n’est balayé pour l’instant.</translation>
    </message>
    <message>
        <source>%1 has ended by itself several times, so nothing is scanned now.</source>
        <translation>%1 s’est arrêté seul plusieurs fois&#xa0;; rien n’est balayé pour l’instant.</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>Lancer %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Fermer quand même</translation>
    </message>
    <message>
        <source>Your settings couldn’t be saved: %1. This window stays open, so that nothing is lost.</source>
        <translation>Vos réglages n’ont pas pu être enregistrés&#xa0;: %1. Cette fenêtre reste ouverte, pour que rien ne se perde.</translation>
    </message>
    <message>
        <source>Save a copy…</source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message>
        <source>Should this window crash, your last changes would be lost: %1.</source>
        <translation>Si cette fenêtre plantait, vos derniers changements seraient perdus&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>Try</name>
    <message>
        <source>This try couldn’t be stored.</source>
        <translation>Cet essai n’a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Your tries stay on this computer.</source>
        <translation>Vos essais restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Dans la fenêtre</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>The copy couldn’t be written.</source>
        <translation>La copie n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <source>All tries are deleted.</source>
        <translation>Tous les essais sont supprimés.</translation>
    </message>
    <message>
        <source>The tries couldn’t be deleted.</source>
        <translation>Les essais n’ont pas pu être supprimés.</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>Tôt</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Tard</translation>
    </message>
    <message>
        <source>The mark is %.1f mm from the top.</source>
        <translation>Le repère est à %.1f mm du haut.</translation>
    </message>
    <message>
        <source>Press early, and let go when the line is on the mark.</source>
        <translation>Appuyez tôt, et relâchez quand la ligne est sur le repère.</translation>
    </message>
    <message>
        <source>Hold your switch down to start the line, and let go when it is on the mark.</source>
        <translation>Maintenez votre contacteur pour lancer la ligne, et relâchez quand elle est sur le repère.</translation>
    </message>
    <message>
        <source>Press when the line is on the mark.</source>
        <translation>Appuyez quand la ligne est sur le repère.</translation>
    </message>
    <message>
        <source>A line will sweep from top to bottom. %s The first two sweeps are for getting used to it. Press any key or button when you are ready.</source>
        <translation>Une ligne va balayer de haut en bas. %s Les deux premiers passages servent à s’y habituer. Appuyez sur une touche ou un bouton quand vous voulez.</translation>
    </message>
    <message>
        <source>Ready. Hold for free sweep %d of %d, when you like.</source>
        <translation>Prêt. Maintenez pour le passage libre %d sur %d, quand vous voulez.</translation>
    </message>
    <message>
        <source>Ready. Press for free sweep %d of %d, when you like.</source>
        <translation>Prêt. Appuyez pour le passage libre %d sur %d, quand vous voulez.</translation>
    </message>
    <message>
        <source>Ready. Hold for sweep %d of %d, when you like.</source>
        <translation>Prêt. Maintenez pour le passage %d sur %d, quand vous voulez.</translation>
    </message>
    <message>
        <source>Ready. Press for sweep %d of %d, when you like.</source>
        <translation>Prêt. Appuyez pour le passage %d sur %d, quand vous voulez.</translation>
    </message>
    <message>
        <source>The line passed.</source>
        <translation>La ligne est passée.</translation>
    </message>
    <message>
        <source>On the mark.</source>
        <translation>Sur le repère.</translation>
    </message>
    <message>
        <source>%.0f mm before the mark.</source>
        <translation>%.0f mm avant le repère.</translation>
    </message>
    <message>
        <source>%.0f mm past the mark.</source>
        <translation>%.0f mm après le repère.</translation>
    </message>
    <message>
        <source>Your presses all came at the same moment, as far as this computer can tell.</source>
        <translation>Vos appuis sont tous tombés au même moment, pour autant que cet ordinateur le sache.</translation>
    </message>
    <message>
        <source>A slower line is likely to suit you better. Try it at %.1f seconds, and we can tell.</source>
        <translation>Une ligne plus lente vous conviendra sans doute mieux. Essayez à %.1f s, et nous le saurons.</translation>
    </message>
    <message>
        <source>A quicker line is likely to suit you better. Try it at %.1f seconds, and we can tell.</source>
        <translation>Une ligne plus rapide vous conviendra sans doute mieux. Essayez à %.1f s, et nous le saurons.</translation>
    </message>
    <message>
        <source>You pressed in %d of %zu sweeps. From %d on we can suggest a speed. Try once more when you like; a slower line gives you more time.</source>
        <translation>Vous avez appuyé dans %d passages sur %zu. À partir de %d, nous pouvons proposer une vitesse. Essayez encore quand vous voulez&#xa0;; une ligne plus lente laisse plus de temps.</translation>
    </message>
    <message>
        <source>%zu of %zu presses came when nothing asked for them. Before the speed, make the presses steadier.</source>
        <translation>%zu appuis sur %zu sont venus sans que rien ne les demande. Avant la vitesse, rendez les appuis plus sûrs.</translation>
    </message>
    <message>
        <source>Ready for the next press after %.1f seconds.</source>
        <translation>Prêt pour l’appui suivant après %.1f s.</translation>
    </message>
    <message>
        <source>Ignoring presses for %.1f seconds after a click would catch most of those that nothing asked for.</source>
        <translation>Ignorer les appuis pendant %.1f s après un clic arrêterait la plupart de ceux que rien ne demandait.</translation>
    </message>
    <message>
        <source>A shortest press of %.1f seconds would, too.</source>
        <translation>Un appui minimal de %.1f s aussi.</translation>
    </message>
    <message>
        <source>They last as long as your other presses, so no shortest press tells them apart.</source>
        <translation>Ils durent autant que vos autres appuis&#xa0;; aucune durée minimale ne les distingue.</translation>
    </message>
    <message>
        <source>Lateness %.0f ms, spread %.0f ms (%.0f ms at most), from %d presses.</source>
        <translation>Retard %.0f ms, dispersion %.0f ms (%.0f ms au plus), sur %d appuis.</translation>
    </message>
    <message>
        <source>The presses came at other moments than the marks, so we can’t suggest a speed. Wait for the line to reach the mark, then press.</source>
        <translation>Les appuis sont venus à d’autres moments que les repères&#xa0;; nous ne pouvons pas proposer de vitesse. Attendez que la ligne atteigne le repère, puis appuyez.</translation>
    </message>
    <message>
        <source>The presses became less even from sweep to sweep. Have a rest, then try once more.</source>
        <translation>Les appuis sont devenus moins réguliers de passage en passage. Reposez-vous, puis réessayez.</translation>
    </message>
    <message>
        <source>Wait for the line.</source>
        <translation>Attendez la ligne.</translation>
    </message>
    <message>
        <source>Go.</source>
        <translation>Allez.</translation>
    </message>
    <message>
        <source>%s: %.1f seconds, hits: %.0f, misses: %.0f, lateness %.0f ms, spread %.0f ms</source>
        <translation>%s&#xa0;: %.1f s, réussis&#xa0;: %.0f, manqués&#xa0;: %.0f, retard %.0f ms, dispersion %.0f ms</translation>
    </message>
    <message>
        <source>%1. Undo takes it back. Try once more before you change anything else.</source>
        <translation>%1. «&#xa0;Annuler&#xa0;» revient en arrière. Essayez encore une fois avant de changer autre chose.</translation>
    </message>
    <message>
        <source>As you have set it, each press moves the scan one step, and no speed matters. Here you can try a line that sweeps: press when it is on the mark.</source>
        <translation>Avec votre réglage, chaque appui avance le balayage d’un pas, et aucune vitesse ne compte. Ici, vous pouvez essayer une ligne qui balaie&#xa0;: appuyez quand elle est sur le repère.</translation>
    </message>
    <message>
        <source>You stopped within %g mm of the mark in %d of %zu sweeps.</source>
        <translation>Vous vous êtes arrêté à moins de %g mm du repère lors de %d passages sur %zu.</translation>
    </message>
    <message>
        <source>That is for a line that sweeps; as you have set it, it moves one step a press.</source>
        <translation>Cela vaut pour une ligne qui balaie&#xa0;; avec votre réglage, elle avance d’un pas par appui.</translation>
    </message>
    <message>
        <source>You are having a rest, and your switch scans as ever. Press here to go on.</source>
        <translation>Vous faites une pause, et votre contacteur balaie comme toujours. Appuyez ici pour continuer.</translation>
    </message>
    <message>
        <source>Target: a palette button, %g mm high</source>
        <translation>Cible&#xa0;: un bouton de la palette, %g mm de haut</translation>
    </message>
    <message>
        <source>Target: %g mm</source>
        <translation>Cible&#xa0;: %g mm</translation>
    </message>
    <message>
        <source>The line</source>
        <translation>La ligne</translation>
    </message>
    <message>
        <source>After a miss it took %.1f seconds to go on.</source>
        <translation>Après un raté, il a fallu %.1f s pour continuer.</translation>
    </message>
    <message>
        <source>On this desktop no window can keep keys for itself, so your switch may scan as well meanwhile.</source>
        <translation>Sur ce bureau, aucune fenêtre ne peut garder les touches pour elle&#xa0;: votre contacteur peut donc aussi balayer pendant ce temps.</translation>
    </message>
    <message>
        <source>The line started, but nothing stopped it. %s Try once more when you like.</source>
        <translation>La ligne est partie, mais rien ne l’a arrêtée. %s Réessayez quand vous voulez.</translation>
    </message>
    <message>
        <source>Spread of your presses, up to %.0f ms</source>
        <translation>Dispersion de vos appuis, jusqu’à %.0f ms</translation>
    </message>
    <message>
        <source>The pointer’s speed is too far from the line’s to say how many clicks will hit.</source>
        <translation>La vitesse du pointeur est trop éloignée de celle de la ligne pour dire combien de clics seront réussis.</translation>
    </message>
    <message>
        <source>It must last for %.1f seconds.</source>
        <translation>Il doit durer %.1f secondes.</translation>
    </message>
    <message>
        <source>Any key but Tab and Escape is a press, and any mouse button on the picture.</source>
        <translation>Toute touche sauf Tab et Échap compte comme appui, et tout bouton de souris sur l’image.</translation>
    </message>
    <message>
        <source>Whether your switch arrives is shown by “First steps”, in the section “General”. Escape leaves.</source>
        <translation>«&#xa0;Premiers pas&#xa0;», dans la section «&#xa0;Général&#xa0;», montre si votre contacteur répond. Échap quitte.</translation>
    </message>
    <message>
        <source>Two sweeps went by without a press. To leave, press now. To go on, wait %.0f seconds.</source>
        <translation>Deux passages se sont écoulés sans appui. Pour quitter, appuyez maintenant. Pour continuer, attendez %.0f secondes.</translation>
    </message>
    <message>
        <source>To leave, hold your switch down for %.0f seconds between two sweeps.</source>
        <translation>Pour quitter, maintenez votre contacteur %.0f secondes entre deux passages.</translation>
    </message>
    <message>
        <source>To leave, hold your switch down until the line has passed, and %.0f seconds more.</source>
        <translation>Pour quitter, maintenez votre contacteur jusqu’à ce que la ligne soit passée, et %.0f secondes de plus.</translation>
    </message>
    <message>
        <source>To leave at any time, hold your switch down for %.0f seconds.</source>
        <translation>Pour quitter à tout moment, maintenez votre contacteur %.0f secondes.</translation>
    </message>
    <message>
        <source>Let go, and you leave.</source>
        <translation>Relâchez, et vous quittez.</translation>
    </message>
    <message>
        <source>Hold on to leave, or let go to stay.</source>
        <translation>Maintenez pour quitter, ou relâchez pour rester.</translation>
    </message>
    <message>
        <source>No press has counted yet.</source>
        <translation>Aucun appui n’a encore compté.</translation>
    </message>
    <message>
        <source>%s | %.1f s | %.0f of %.0f | %.0f ms | %.0f ms</source>
        <translation>%s | %.1f s | %.0f sur %.0f | %.0f ms | %.0f ms</translation>
    </message>
    <message>
        <source>Date | Line | Hits | Lateness | Spread</source>
        <translation>Date | Ligne | Réussis | Retard | Dispersion</translation>
    </message>
    <message>
        <source>Set “%1”
to %2</source>
        <translation>Régler «&#xa0;%1&#xa0;»
sur %2</translation>
    </message>
    <message>
        <source>Use %.1f s and try</source>
        <translation>Prendre %.1f s et essayer</translation>
    </message>
    <message>
        <source>Keep %.1f s</source>
        <translation>Garder %.1f s</translation>
    </message>
    <message>
        <source>%d in 10, at least %d</source>
        <translation>%d réussis sur 10, au moins %d</translation>
    </message>
    <message>
        <source>%.1f seconds suits you: we expect %s.</source>
        <translation>Un temps de %.1f s vous convient : nous attendons %s.</translation>
    </message>
    <message>
        <source>At %.1f seconds we expect %s. At %.1f seconds, as it is now: %s.</source>
        <translation>À %.1f s, nous attendons %s. À %.1f s, comme maintenant : %s.</translation>
    </message>
    <message>
        <source>Line and pointer together, with the pointer at %.1f s: %s.</source>
        <translation>Ligne et pointeur ensemble, avec le pointeur à %.1f s : %s.</translation>
    </message>
    <message>
        <source>Line and pointer together, with the pointer at %.1f s instead of %.1f: %s.</source>
        <translation>Ligne et pointeur ensemble, avec le pointeur à %.1f s au lieu de %.1f : %s.</translation>
    </message>
    <message>
        <source>At least %d in 10 takes %.1f seconds.</source>
        <translation>Au moins %d réussis sur 10 demandent %.1f s.</translation>
    </message>
    <message>
        <source>At least %d clicks in 10 takes %.1f seconds for the line and %.1f for the pointer.</source>
        <translation>Pour au moins %d clics réussis sur 10, il faut %.1f s pour la ligne et %.1f pour le pointeur.</translation>
    </message>
    <message>
        <source>Even at %.0f seconds, the slowest, we can’t expect 3 clicks in 4 to hit. Targets of %.0f mm would make it so.</source>
        <translation>Même à %.0f secondes, le plus lent, on ne peut attendre 3 clics réussis sur 4. Des cibles de %.0f mm le permettraient.</translation>
    </message>
    <message>
        <source>Even at %.0f seconds, the slowest, we can’t expect 3 in 4. Targets of %.0f mm would make it so.</source>
        <translation>Même à %.0f secondes, le plus lent, on ne peut attendre 3 sur 4. Des cibles de %.0f mm le permettraient.</translation>
    </message>
    <message>
        <source>This counts presses beside a button that stands alone: they click it, too.</source>
        <translation>Les appuis à côté d’un bouton isolé comptent aussi : ils cliquent dessus.</translation>
    </message>
</context>
<context>
    <name>Units</name>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>points</source>
        <translation>points</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>millisecondes</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <comment>as in 1 to 60 seconds</comment>
        <translation>%1 à %2 %3</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>as in 0 to 100</comment>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>axreq</name>
    <message>
        <source>Korvex</source>
        <translation>Korvex</translation>
    </message>
    <message>
        <source>Assistive access is switched off</source>
        <translation>L’accès d’assistance est désactivé</translation>
    </message>
    <message>
        <source>Don’t show this again</source>
        <translation>Ne plus montrer</translation>
    </message>
    <message>
        <source>Takes effect when you choose “Not now”.</source>
        <translation>Prend effet quand vous choisissez «&#xa0;Pas maintenant&#xa0;».</translation>
    </message>
    <message>
        <source>&amp;Don’t show this again</source>
        <translation>&amp;Ne plus montrer</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message>
        <source>Shows where assistive access is switched on.</source>
        <translation>Montre où l’accès d’assistance s’active.</translation>
    </message>
    <message>
        <source>Open sett&amp;ings</source>
        <translation>O&amp;uvrir les réglages</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Closes this notice until tomorrow. The Escape key does the same.</source>
        <translation>Ferme cet avis jusqu’à demain. La touche Échap fait de même.</translation>
    </message>
    <message>
        <source>&amp;Not now</source>
        <translation>&amp;Pas maintenant</translation>
    </message>
    <message>
        <source>Korvex needs it to find the windows, menus and buttons on your screen. While it is off, Korvex can’t scan. “Open settings” shows you where to switch it on. This notice closes by itself half a minute after your last key or press in it.</source>
        <translation>Korvex en a besoin pour trouver les fenêtres, menus et boutons à l’écran. Tant qu’il est désactivé, Korvex ne peut pas balayer. «&#xa0;Ouvrir les réglages&#xa0;» montre où l’activer. Cet avis se ferme de lui-même une demi-minute après la dernière touche ou le dernier appui dedans.</translation>
    </message>
    <message>
        <source>Switch it on</source>
        <translation>L’activer</translation>
    </message>
    <message>
        <source>Switches assistive access on, where the desktop lets a program do so. Else it opens the settings.</source>
        <translation>Active l’accès d’assistance là où le bureau laisse un programme le faire. Sinon, ouvre les réglages.</translation>
    </message>
    <message>
        <source>&amp;Switch it on</source>
        <translation>L’&amp;activer</translation>
    </message>
</context>
<context>
    <name>firststeps</name>
    <message>
        <source>First steps</source>
        <translation>Premiers pas</translation>
    </message>
    <message>
        <source>Welcome to Korvex</source>
        <translation>Bienvenue dans Korvex</translation>
    </message>
    <message>
        <source>1. See your switch answer</source>
        <translation>1. Voir répondre votre contacteur</translation>
    </message>
    <message>
        <source>Press your switch</source>
        <translation>Appuyer sur votre contacteur</translation>
    </message>
    <message>
        <source>Answers any key and button, and this button’s press action. Tab goes on.</source>
        <translation>Répond à toute touche, à tout bouton et à l’action d’appui de ce bouton. Tab passe à la suite.</translation>
    </message>
    <message>
        <source>2. Choose how you press</source>
        <translation>2. Choisir comment vous appuyez</translation>
    </message>
    <message>
        <source>How your switch controls the scan.</source>
        <translation>Comment votre contacteur commande le balayage.</translation>
    </message>
    <message>
        <source>Press to start, press to choose</source>
        <translation>Appuyer pour lancer, appuyer pour choisir</translation>
    </message>
    <message>
        <source>The scan moves by itself. Press once to start it and again at the thing you want.</source>
        <translation>Le balayage avance seul. Appuyez une fois pour le lancer, et de nouveau sur ce que vous voulez.</translation>
    </message>
    <message>
        <source>Hold to scan, let go to choose</source>
        <translation>Maintenir pour balayer, relâcher pour choisir</translation>
    </message>
    <message>
        <source>The scan moves while you hold your switch down and stops when you let go.</source>
        <translation>Le balayage avance tant que vous maintenez votre contacteur, et s’arrête quand vous le relâchez.</translation>
    </message>
    <message>
        <source>Each press moves one step</source>
        <translation>Chaque appui avance d’un pas</translation>
    </message>
    <message>
        <source>Nothing moves until you press, so there is no moment to miss.</source>
        <translation>Rien ne bouge sans appui&#xa0;: il n’y a aucun moment à manquer.</translation>
    </message>
    <message>
        <source>3. Set a speed</source>
        <translation>3. Régler une vitesse</translation>
    </message>
    <message>
        <source>Line crosses the screen in</source>
        <translation>La ligne traverse l’écran en</translation>
    </message>
    <message>
        <source>shorter</source>
        <translation>plus court</translation>
    </message>
    <message>
        <source>longer</source>
        <translation>plus long</translation>
    </message>
    <message>
        <source>Begin slowly. More time makes it easier to stop the line in the right place.</source>
        <translation>Commencez lentement. Avec plus de temps, il est plus facile d’arrêter la ligne au bon endroit.</translation>
    </message>
    <message>
        <source>Not sure?</source>
        <translation>Un doute&#xa0;?</translation>
    </message>
    <message>
        <source>Press your switch a few times and see which speed suits you. That leaves this page.</source>
        <translation>Appuyez quelques fois sur votre contacteur et voyez quelle vitesse vous convient. Cela quitte cette page.</translation>
    </message>
    <message>
        <source>Find my speed</source>
        <translation>Trouver ma vitesse</translation>
    </message>
    <message>
        <source>Find my speed…</source>
        <translation>Trouver ma vitesse…</translation>
    </message>
    <message>
        <source>4. Know where help is</source>
        <translation>4. Savoir où trouver de l’aide</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Says what each setting does. F1 opens it at any time.</source>
        <translation>Dit ce que fait chaque réglage. F1 l’ouvre à tout moment.</translation>
    </message>
    <message>
        <source>Open help</source>
        <translation>Ouvrir l’aide</translation>
    </message>
    <message>
        <source>Korvex’s agent</source>
        <translation>L’agent de Korvex</translation>
    </message>
    <message>
        <source>About the agent</source>
        <translation>À propos de l’agent</translation>
    </message>
    <message>
        <source>Goes to the settings. What you changed here stays.</source>
        <translation>Va aux réglages. Ce que vous avez changé ici reste.</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Way of scanning</source>
        <translation>Façon de balayer</translation>
    </message>
    <message>
        <source>A line sweeps across the screen, and a press of your switch chooses what it touches. Five steps are enough to begin. All of it can be changed later, and this page is found again under General.</source>
        <translation>Une ligne balaie l’écran, et un appui sur votre contacteur choisit ce qu’elle touche. Cinq étapes suffisent pour commencer. Tout peut être changé plus tard, et cette page se retrouve sous « Général ».</translation>
    </message>
    <message>
        <source>A program of its own that does the scanning, also when this window is closed. Here you set how.</source>
        <translation>Un programme à part qui fait le balayage, même quand cette fenêtre est fermée. Ici, vous réglez comment.</translation>
    </message>
    <message>
        <source>5. Scan for the first time</source>
        <translation>5. Balayer pour la première fois</translation>
    </message>
    <message>
        <source>Your first scan</source>
        <translation>Votre premier balayage</translation>
    </message>
    <message>
        <source>Press your switch: the line starts. Press again when it is on this button, and once more when the pointer is.</source>
        <translation>Appuyez sur votre contacteur : la ligne part. Appuyez de nouveau quand elle est sur ce bouton, et encore une fois quand le pointeur y est.</translation>
    </message>
    <message>
        <source>Hit me</source>
        <translation>Touchez-moi</translation>
    </message>
</context>
<context>
    <name>tryout</name>
    <message>
        <source>Find my speed</source>
        <translation>Trouver ma vitesse</translation>
    </message>
    <message>
        <source>Gives the line the whole screen, as in use.</source>
        <translation>Donne tout l’écran à la ligne, comme à l’usage.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Press any key or button, or use this button’s press action. Escape leaves.</source>
        <translation>Appuyez sur une touche ou un bouton, ou utilisez l’action d’appui de ce bouton. Échap quitte.</translation>
    </message>
    <message>
        <source>Sets the line scan time and lets you try it. You can go back at any time.</source>
        <translation>Règle la durée de balayage de la ligne et vous laisse l’essayer. Vous pouvez revenir à tout moment.</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Starts another try with the same settings.</source>
        <translation>Lance un autre essai avec les mêmes réglages.</translation>
    </message>
    <message>
        <source>Once more</source>
        <translation>Encore une fois</translation>
    </message>
    <message>
        <source>Your tries</source>
        <translation>Vos essais</translation>
    </message>
    <message>
        <source>One line a try, the last one at the end. The arrow keys go through them.</source>
        <translation>Une ligne par essai, le dernier à la fin. Les flèches les parcourent.</translation>
    </message>
    <message>
        <source>Writes a copy of all tries to your documents.</source>
        <translation>Écrit une copie de tous les essais dans vos documents.</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Enregistrer en CSV</translation>
    </message>
    <message>
        <source>Deletes what this page has kept of your tries.</source>
        <translation>Supprime ce que cette page a gardé de vos essais.</translation>
    </message>
    <message>
        <source>Delete all tries</source>
        <translation>Supprimer tous les essais</translation>
    </message>
    <message>
        <source>Changes this setting, and nothing else. Undo takes it back.</source>
        <translation>Change ce réglage, et rien d’autre. «&#xa0;Annuler&#xa0;» revient en arrière.</translation>
    </message>
    <message>
        <source>Target, smaller</source>
        <translation>Cible, plus petite</translation>
    </message>
    <message>
        <source>For a smaller mark, by a millimetre.</source>
        <translation>Pour un repère plus petit, d’un millimètre.</translation>
    </message>
    <message>
        <source>Target, larger</source>
        <translation>Cible, plus grande</translation>
    </message>
    <message>
        <source>For a larger mark, by a millimetre.</source>
        <translation>Pour un repère plus grand, d’un millimètre.</translation>
    </message>
    <message>
        <source>Makes the mark as high as a button of the palette.</source>
        <translation>Donne au repère la hauteur d’un bouton de la palette.</translation>
    </message>
    <message>
        <source>As a palette button</source>
        <translation>Comme un bouton de la palette</translation>
    </message>
    <message>
        <source>Goes back to the settings, which stay as they are. From eight presses on the try is kept among your tries.</source>
        <translation>Revient aux réglages, qui restent comme ils sont. À partir de huit appuis, l’essai est gardé parmi vos essais.</translation>
    </message>
    <message>
        <source>&lt;p&gt;The settings stay as they are. From eight presses on the try is kept among your tries.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Les réglages restent comme ils sont. À partir de huit appuis, l’essai est gardé parmi vos essais.&lt;/p&gt;</translation>
    </message>
</context>
</TS>

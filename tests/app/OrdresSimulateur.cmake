# korvalis-sim and its scripts of orders, from the command line: a script that does not read
# or names what the world lacks stops the simulator with status 2 before any tick, with a
# message naming the file and the line; the example script runs and its figures are printed.
# Called with -DSIM=<korvalis-sim> -DJEU=<game folder> -DSCRIPT=<example> -DDOSSIER=<scratch>.
file(MAKE_DIRECTORY ${DOSSIER})
set(monde --dossier ${JEU} --graine 7 --largeur 100 --hauteur 80 --fiefs 2 --villageois 3 --gisements 40)

function(refuse nom contenu attendu)
  file(WRITE ${DOSSIER}/${nom} "${contenu}")
  execute_process(COMMAND ${SIM} ${monde} --ticks 50 --ordres ${DOSSIER}/${nom}
    RESULT_VARIABLE statut OUTPUT_VARIABLE sortie ERROR_VARIABLE erreur)
  if(NOT statut EQUAL 2)
    message(FATAL_ERROR "${nom} : statut ${statut} au lieu de 2\n${erreur}")
  endif()
  string(FIND "${erreur}" "${DOSSIER}/${nom}, ${attendu}" trouve)
  if(trouve EQUAL -1)
    message(FATAL_ERROR "${nom} : message sans « ${attendu} » :\n${erreur}")
  endif()
  if(sortie MATCHES "ticks=")
    message(FATAL_ERROR "${nom} : le simulateur a tourné malgré tout :\n${sortie}")
  endif()
endfunction()

refuse(inconnu.txt "0 0 arreter\n10 0 voler\n" "ligne 2 : ordre inconnu « voler »")
refuse(personnage.txt "; six villageois en tout\n0 6 rentrer\n" "ligne 2 : le personnage 6 n'existe pas (0 à 5)")
refuse(type.txt "0 0 batir 99 0 0\n" "ligne 1 : type de bâtiment 99 hors limites")

execute_process(COMMAND ${SIM} ${monde} --ticks 50 --ordres ${DOSSIER}/absent.txt
  RESULT_VARIABLE statut ERROR_VARIABLE erreur)
if(NOT statut EQUAL 2 OR NOT erreur MATCHES "absent.txt : impossible de lire")
  message(FATAL_ERROR "fichier absent : statut ${statut}\n${erreur}")
endif()

execute_process(COMMAND ${SIM} ${monde} --ticks 200 --ordres ${SCRIPT}
  RESULT_VARIABLE statut OUTPUT_VARIABLE sortie ERROR_VARIABLE erreur)
if(NOT statut EQUAL 0)
  message(FATAL_ERROR "exemple : statut ${statut}\n${erreur}")
endif()
foreach(cle "ticks=200" "ordres=2/14" "fief=0 epoque=" " stock=" " batiments=0 objets=0" "fief=1 ")
  string(FIND "${sortie}" "${cle}" trouve)
  if(trouve EQUAL -1)
    message(FATAL_ERROR "exemple : « ${cle} » manque :\n${sortie}")
  endif()
endforeach()

# korvalis-sim --serie from the command line: per seed its milestone lines, per fief, then a
# summary per milestone; checked after every tick, a sound world plays on to the end; a seed of
# the series ends in the state of a lone game of that seed; bad ranges are refused with status 2.
# Called with -DSIM=<korvalis-sim> -DJEU=<game folder>.
set(monde --dossier ${JEU} --largeur 100 --hauteur 80 --fiefs 2 --villageois 3 --gisements 40)

execute_process(COMMAND ${SIM} ${monde} --serie 4-5 --ticks 300 --jalons 100 --invariants
  RESULT_VARIABLE statut OUTPUT_VARIABLE sortie ERROR_VARIABLE erreur)
if(NOT statut EQUAL 0)
  message(FATAL_ERROR "série : statut ${statut}\n${sortie}\n${erreur}")
endif()
foreach(cle "graine=4 personnages=6 fiefs=2\n" "graine=4 tick=100 fief=0 epoque=0 vivants=3 morts=0\n" "graine=5 tick=300 fief=1 "
    "bilan tick=100 fiefs=4 epoque2=0 tous_morts=0\n" "bilan tick=300 fiefs=4 ")
  string(FIND "${sortie}" "${cle}" trouve)
  if(trouve EQUAL -1)
    message(FATAL_ERROR "série : « ${cle} » manque :\n${sortie}")
  endif()
endforeach()
if(sortie MATCHES "invariant=")
  message(FATAL_ERROR "série : un invariant rompu :\n${sortie}")
endif()

string(REGEX MATCH "graine=5 ticks=300 [^\n]* empreinte=([0-9a-f]+)" _ "${sortie}")
set(empreinte_serie ${CMAKE_MATCH_1})
execute_process(COMMAND ${SIM} ${monde} --graine 5 --ticks 300 OUTPUT_VARIABLE seule)
string(REGEX MATCH "empreinte=([0-9a-f]+)" _ "${seule}")
if(NOT empreinte_serie OR NOT empreinte_serie STREQUAL CMAKE_MATCH_1)
  message(FATAL_ERROR "la graine 5 de la série (${empreinte_serie}) finit ailleurs que seule (${CMAKE_MATCH_1})")
endif()

foreach(options "--serie;5-4" "--serie;1-x" "--jalons;100" "--serie;1-2;--jalons;200,100" "--serie;1-2;--etat"
    "--banc;--invariants")
  execute_process(COMMAND ${SIM} ${monde} ${options} RESULT_VARIABLE statut OUTPUT_QUIET ERROR_QUIET)
  if(NOT statut EQUAL 2)
    message(FATAL_ERROR "« ${options} » : statut ${statut} au lieu de 2")
  endif()
endforeach()

# Turns a man page written in scdoc into roff, and a gzip-compressed copy to
# install (as Debian keeps its man pages):
#   cmake -DSCDOC=scdoc -DINPUT=page.1.scd -DOUTPUT=page.1 -P MakeManPage.cmake
execute_process(COMMAND ${SCDOC} INPUT_FILE ${INPUT} OUTPUT_FILE ${OUTPUT} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    file(REMOVE ${OUTPUT})
    message(FATAL_ERROR "scdoc failed on ${INPUT}")
endif()
execute_process(COMMAND gzip -9 -n -c ${OUTPUT} OUTPUT_FILE ${OUTPUT}.gz RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "gzip failed on ${OUTPUT}")
endif()

# Runs one fuzz target for a short while:
# cmake -D PROGRAM=... -D DICTIONARY=... -D SEEDS=... -D WORK=... -P RunFuzzTarget.cmake
# Fails with the target, and also when no input was run at all.

file(GLOB seeds ${SEEDS}/*)
if(NOT seeds)
    message(FATAL_ERROR "No seeds in ${SEEDS}.")
endif()
file(MAKE_DIRECTORY ${WORK}/corpus)
execute_process(
    COMMAND ${PROGRAM} -max_total_time=3 -dict=${DICTIONARY} -timeout=10 -rss_limit_mb=2048 -print_final_stats=1
        -artifact_prefix=${WORK}/ ${WORK}/corpus ${SEEDS}
    RESULT_VARIABLE result
    ERROR_VARIABLE log
    ECHO_ERROR_VARIABLE)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}. The input that it failed on is in ${WORK}.")
endif()
if(NOT log MATCHES "stat::number_of_executed_units: +[1-9]")
    message(FATAL_ERROR "${PROGRAM} ran no input.")
endif()

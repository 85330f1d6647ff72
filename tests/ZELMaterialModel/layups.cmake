zel_test(test_module_layups
    FILES
        src/ZELCreateLayupLayer_test.cpp
        src/ZELCreateLayup_test.cpp
        src/ZELELayupIsUnused_test.cpp
        src/ZELELayupLayerMaterialData_test.cpp
        src/ZELELayupLayer_test.cpp
        src/ZELELayupValidity_test.cpp
        src/ZELELayup_test.cpp
        src/ZELFEModelInfo_test.cpp
        src/ZELLayupRegistration_test.cpp
    LINKS module_src module_store ZELShared test_support)

# The module over other shared utilities: their tables alone, with stand-ins for the analysis-case factory, the document
# helpers and the unique names, which answer what the real ones never do.
zel_test(test_module_analysis_case
    FILES
        ZELAnalysisServices.cpp
        src/ZELAnalysisStatuses_test.cpp
        src/ZELPropertiesSet_test.cpp
        "${PROJECT_SOURCE_DIR}/ZELShared/ZELCftArrayZELCftArrayDouble.cpp"
        "${PROJECT_SOURCE_DIR}/ZELShared/ZELCftArraydouble.cpp"
        "${PROJECT_SOURCE_DIR}/ZELShared/ZELDlgUnit.cpp"
        "${PROJECT_SOURCE_DIR}/ZELShared/ZELGenComparator.cpp"
        $<TARGET_OBJECTS:module_src>
        $<TARGET_OBJECTS:module_store>
    LINKS test_support)

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

# The module over another analysis-case factory: the shared utilities without their own one, so that a test can stand in
# for it under its name.
add_library(test_shared_without_case OBJECT
    "${PROJECT_SOURCE_DIR}/ZELShared/ZELAnalysisDocUtils.cpp"
    "${PROJECT_SOURCE_DIR}/ZELShared/ZELCftArrayZELCftArrayDouble.cpp"
    "${PROJECT_SOURCE_DIR}/ZELShared/ZELCftArraydouble.cpp"
    "${PROJECT_SOURCE_DIR}/ZELShared/ZELDlgUnit.cpp"
    "${PROJECT_SOURCE_DIR}/ZELShared/ZELGenComparator.cpp"
    "${PROJECT_SOURCE_DIR}/ZELShared/ZELNameUtil.cpp")
target_link_libraries(test_shared_without_case PRIVATE framework interfaces zel_build_flags)

zel_test(test_module_analysis_case
    FILES
        src/ZELPropertiesSet_test.cpp
        $<TARGET_OBJECTS:module_src>
        $<TARGET_OBJECTS:module_store>
        $<TARGET_OBJECTS:test_shared_without_case>
    LINKS test_support)

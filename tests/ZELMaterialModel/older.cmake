zel_test(test_older_documents
    FILES
        older/ZELCatalogFolder.cpp
        older/ZELConvertOnce_test.cpp
        older/ZELOlderDocument.cpp
        older/ZELOlderDocuments_test.cpp
        older/ZELUndeclaredAttributes_test.cpp
        older/ZELUpgradeFailingCatalog_test.cpp
        older/ZELUpgradeMissingKeys_test.cpp
    LINKS module_src module_store ZELShared test_support)
target_compile_definitions(test_older_documents PRIVATE
    ZEL_OLDER_DOCUMENTS="${PROJECT_SOURCE_DIR}/tests/data/older")

# A program of its own, since it replaces the allocation functions of its process.
zel_test(test_module_memory
    FILES
        memory/ZELModuleMemory_test.cpp
        older/ZELCatalogFolder.cpp
        older/ZELOlderDocument.cpp
        "${PROJECT_SOURCE_DIR}/tests/support/ZELFailingAllocation.cpp"
    LINKS module_src module_store ZELShared test_support)
target_compile_definitions(test_module_memory PRIVATE
    ZEL_OLDER_DOCUMENTS="${PROJECT_SOURCE_DIR}/tests/data/older")

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

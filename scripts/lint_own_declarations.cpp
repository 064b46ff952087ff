// A plugin of clang-tidy: the checks walk over what the project declares. Without it they walk over all that the
// system's headers declare, too, which is some seventy parts in a hundred of their time and never reported.

#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <clang/ASTMatchers/ASTMatchFinder.h>

#include <vector>

namespace {

/// Finds nothing. It meets the whole unit before any check meets a part of it, and the walk asks for its parts
/// afterwards.
class OwnDeclarations : public clang::tidy::ClangTidyCheck {
public:
    using ClangTidyCheck::ClangTidyCheck;

    void registerMatchers(clang::ast_matchers::MatchFinder* finder) override {
        finder->addMatcher(clang::ast_matchers::translationUnitDecl().bind("unit"), this);
    }

    void check(const clang::ast_matchers::MatchFinder::MatchResult& result) override {
        const clang::SourceManager& sources = *result.SourceManager;
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : result.Nodes.getNodeAs<clang::TranslationUnitDecl>("unit")->decls()) {
            if (!sources.isInSystemHeader(sources.getExpansionLoc(declaration->getLocation()))) {
                own.push_back(declaration);
            }
        }
        result.Context->setTraversalScope(own);
    }
};

class OrtinModule : public clang::tidy::ClangTidyModule {
public:
    void addCheckFactories(clang::tidy::ClangTidyCheckFactories& factories) override {
        factories.registerCheck<OwnDeclarations>("ortin-own-declarations");
    }
};

const clang::tidy::ClangTidyModuleRegistry::Add<OrtinModule> kOrtinModule("ortin", "How this project is linted.");

} // namespace

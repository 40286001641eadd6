#pragma once

/// Takes the language that --language names for the system's, which the pages go by as well. Called
/// before there is an application.
void chooseLanguage(int argc, char** argv);

/// Installs the texts of Qt and of the viewer in the application.
void loadTranslations();

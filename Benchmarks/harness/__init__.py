"""Measures Tamble side by side with the programs people would use instead."""

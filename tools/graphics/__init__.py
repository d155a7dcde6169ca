"""Picture writers and the art of the program's pictures, drawn without any image library."""

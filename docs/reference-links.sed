# On a forge these links work as they are. In the generated reference a header is a page, headings have no names, and the files
# outside it are only named.
s|\]\([./]*include/TRX-SELVASetup/([A-Za-z-]+\.h)\)|](@ref \1)|g
s|\[([^]]*)\]\(#[^)]*\)|\1|g
s|\]\(([^)#]+\.md)#[^)]*\)|](\1)|g
s~\[([^]]*)\]\([./]*(Simulator/README\.md|scripts/setup\.sh)\)~\1~g
s|\]\(examples|](../docs/examples|g

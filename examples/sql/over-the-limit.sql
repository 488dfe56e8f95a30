-- Work for the repair list: element ends over the limit, and where the worst of them is.
SELECT v.project, v.substructure, v.family, v.ends_over, v.ends, v.dc, v.place, v."case"
FROM verdict AS v
WHERE v.ends_over > 0
ORDER BY v.ends_over DESC, v.dc DESC, v.project, v.substructure, v.family;

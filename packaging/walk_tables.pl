# A reader of its own for tables and their indexes (libdbd-xbase-perl): one line a table with its
# rows, live rows, and the rows met in the order of tag ROWID. walk_tables.pl TABLE.dbf ...
# Ends with status 1 when a walk does not meet each live row once, with its number rising.
use strict;
use warnings;
use XBase;

my $wrong = 0;
for my $dbf (@ARGV) {
    (my $cdx = $dbf) =~ s/\.dbf$/.cdx/;
    my $table = XBase->new($dbf) or die "$dbf: " . XBase->errstr . "\n";
    my $rows = $table->last_record + 1;
    my $live = 0;
    for my $row (0 .. $rows - 1) {
        my ($deleted) = $table->get_record($row, 'ROWID');
        $live++ unless $deleted;
    }
    my $walk = $table->prepare_select_with_index([$cdx, 'ROWID'], 'ROWID')
        or die "$cdx: " . $table->errstr . "\n";
    my ($met, $last) = (0, undef);
    while (my ($number) = $walk->fetch) {
        $wrong = 1 if defined $last && $number <= $last;
        ($met, $last) = ($met + 1, $number);
    }
    $wrong = 1 if $met != $live;
    print "$dbf: $rows rows, $live live, $met by tag ROWID\n";
}
exit $wrong;

# A reader of its own for tables, memo files and indexes (libdbd-xbase-perl): one line a table with
# its rows, live rows, the rows met in the order of its first tag, and sums over what the live rows
# hold, without and with their texts. walk_tables.pl TABLE.dbf ...
# Ends with status 1 when a walk does not meet each live row once, with its key rising.
use strict;
use warnings;
use Digest::MD5 qw(md5_hex);
use File::Basename qw(basename);
use XBase;

my $wrong = 0;
for my $dbf (@ARGV) {
    (my $cdx = $dbf) =~ s/\.dbf$/.cdx/;
    my $table = XBase->new($dbf) or die "$dbf: " . XBase->errstr . "\n";
    my @types = $table->field_types;
    my $key = ($table->field_names)[0]; # each of our tables has a tag of this name
    my $rows = $table->last_record + 1;
    my ($live, $fields, $texts) = (0, '', '');
    for my $row (0 .. $rows - 1) {
        my ($deleted, @values) = $table->get_record($row);
        die "$dbf: row $row: " . $table->errstr . "\n" unless defined $deleted;
        next if $deleted;
        $live++;
        for my $i (0 .. $#values) {
            my $value = ($values[$i] // '') . "\0";
            ($types[$i] eq 'M' ? $texts : $fields) .= $value;
        }
    }
    my $walk = $table->prepare_select_with_index([$cdx, $key, $types[0]], $key)
        or die "$cdx: " . $table->errstr . "\n";
    my ($met, $last) = (0, undef);
    while (my ($value) = $walk->fetch) {
        $wrong = 1 if defined $last && ($key eq 'ROWID' ? $value <= $last : lc $value le lc $last);
        ($met, $last) = ($met + 1, $value);
    }
    $wrong = 1 if $met != $live;
    printf "%s: %d rows, %d live, %d by tag %s, fields %s, texts %s\n", basename($dbf), $rows, $live,
        $met, $key, md5_hex($fields), md5_hex($texts);
}
exit $wrong;
